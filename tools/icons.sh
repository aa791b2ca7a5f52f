#!/usr/bin/env bash
# Draws the viewer's icon in all its sizes anew, from the drawing beside them; needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../Apps/orlo/desktop"
for size in 16 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" org.example.orlo.svg --output "icons/$size.png"
done
