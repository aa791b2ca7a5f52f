#!/usr/bin/env bash
# Sets the machine up, builds and starts the viewer. Without a display it opens the preferences on a virtual one,
# applies a change, and leaves pictures under build/tour.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

install_packages
build default

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/bin/orlo "$@"
fi

# A store of its own: nobody's preferences change by looking.
rm -rf build/tour
mkdir -p build/tour
echo "There is no display; showing the preferences on a virtual one."
xvfb-run --auto-servernum --server-args="-screen 0 1600x1000x24 -noreset" \
    build/bin/orlo --store build/tour/preferences.db --tour build/tour "$@"
