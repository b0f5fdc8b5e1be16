#!/usr/bin/env bash
# Builds into the given folder (default: build) and runs every test offscreen.
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build}
./scripts/install-deps.sh
cmake -S . -B "$dir" -G Ninja
cmake --build "$dir" -j "$(nproc)"
QT_QPA_PLATFORM=offscreen ctest --test-dir "$dir" --output-on-failure -j "$(nproc)"
