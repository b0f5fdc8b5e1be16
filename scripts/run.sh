#!/usr/bin/env bash
# Builds and starts norvane-host with the inertial plug-in on the embedded
# simulated controller. Arguments go to norvane-host (try --help).
# Without a display it takes the tour instead: a picture of the window and of
# every dialog the plug-in offers, into $NORVANE_TOUR_DIR (default: tour/).
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -G Ninja
cmake --build build -j "$(nproc)" --target norvane-host
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    folder=${NORVANE_TOUR_DIR:-tour}
    echo "No display (\$DISPLAY and \$WAYLAND_DISPLAY are empty), so norvane-host cannot open its window."
    echo "Taking the tour instead: pictures of the window and the plug-in's dialogs go to $(realpath -m "$folder")/"
    exec build/bin/norvane-host --tour "$folder" --scenario simulator/scenarios/tour.json "$@"
fi
exec build/bin/norvane-host "$@"
