#!/usr/bin/env bash
# Sets the machine up, builds and opens the sample in the viewer, with the preferences beside it. Without a display it
# shows both on a virtual one, applies changes, and leaves pictures under build/tour.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

install_packages
build default

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/bin/orlo --sample --preferences "$@"
fi

# A store of its own: nobody's preferences change by looking.
rm -rf build/tour
mkdir -p build/tour
echo "There is no display; showing the preferences on a virtual one."
xvfb-run --auto-servernum --server-args="-screen 0 1600x1000x24 -noreset" \
    build/bin/orlo --sample --store build/tour/preferences.db --tour build/tour "$@"
