#!/usr/bin/env bash
# Installs the Debian packages the project needs (only the missing ones),
# configures and builds into ./build.
set -euo pipefail
cd "$(dirname "$0")/.."

missing=()
while read -r pkg; do
    [ -z "$pkg" ] && continue
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "ok installed"; then
        missing+=("$pkg")
    fi
done < scripts/deps.txt

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    SUDO=""
    if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
    $SUDO apt-get -o DPkg::Lock::Timeout=600 update -qq
    $SUDO env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 \
        install -y -qq --no-install-recommends "${missing[@]}"
fi

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j"$(nproc)"
