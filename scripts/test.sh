#!/usr/bin/env bash
# Sets everything up, runs the whole test suite in a virtual X server, then
# runs it again built with the address, leak and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
(cd build && xvfb-run -a -s "-screen 0 1920x1080x24" ctest --output-on-failure --timeout 900 -j"$(nproc)")
bash scripts/test-sanitized.sh
