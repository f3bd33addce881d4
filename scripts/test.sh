#!/usr/bin/env bash
# Sets everything up, then runs the whole test suite in a virtual X server:
# once in the normal build, once in a build with AddressSanitizer,
# UndefinedBehaviorSanitizer and LeakSanitizer (build-san).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
jobs="$(nproc)"
(cd build && xvfb-run -a -s "-screen 0 1920x1080x24" ctest --output-on-failure --timeout 900 -j"$jobs")

cmake -S . -B build-san -DCMAKE_BUILD_TYPE=RelWithDebInfo -DGLIMMER_SANITIZE=ON -DGLIMMER_BUILD_BENCH=OFF
cmake --build build-san -j"$jobs"
(cd build-san && xvfb-run -a -s "-screen 0 1920x1080x24" ctest --output-on-failure --timeout 2700 -j"$jobs")
