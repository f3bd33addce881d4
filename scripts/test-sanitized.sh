#!/usr/bin/env bash
# Builds everything with AddressSanitizer, UndefinedBehaviorSanitizer and
# LeakSanitizer in build-san and runs the whole suite there.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
jobs="$(nproc)"
cmake -S . -B build-san -DCMAKE_BUILD_TYPE=RelWithDebInfo -DGLIMMER_SANITIZE=ON -DGLIMMER_BUILD_BENCH=OFF
cmake --build build-san -j"$jobs"
cd build-san
xvfb-run -a -s "-screen 0 1920x1080x24" ctest --output-on-failure --timeout 2700 -j"$jobs" "$@"
