#!/usr/bin/env bash
# Builds and starts norvane-host on the embedded simulated controller.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -G Ninja
cmake --build build -j "$(nproc)"
if [ ! -x build/bin/norvane-host ]; then
    echo "Built the plug-in (build/bin/libInertialTracking.so); norvane-host is not part of this build yet."
    exit 0
fi
exec build/bin/norvane-host "$@"
