#!/usr/bin/env bash
# Sets everything up, then starts Glimmer (any arguments are passed on, e.g. a video).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
exec ./build/glimmer "$@"
