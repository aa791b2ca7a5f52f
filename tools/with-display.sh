#!/usr/bin/env bash
# Runs a command on a virtual display of its own, of the size ORLO_SCREEN where that is set. -noreset: the display must
# not start anew when its first client goes.
set -euo pipefail
export QT_QPA_PLATFORM=xcb
# Pictures are compared: every machine draws them in the same way, on the processor.
export LIBGL_ALWAYS_SOFTWARE=1
exec xvfb-run --auto-servernum --server-args="-screen 0 ${ORLO_SCREEN:-1600x1000}x24 -noreset" "$@"
