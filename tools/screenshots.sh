#!/usr/bin/env bash
# Makes the pictures in docs/pictures anew, with the viewer as it was built last. Needs no display.
set -euo pipefail
cd "$(dirname "$0")/.."

[ -x build/bin/orlo ] || { echo "screenshots.sh: build/bin/orlo is not there; build first" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A home and a store of its own: the pictures show what everyone sees at the first start.
HOME="$work" XDG_CONFIG_HOME="$work" XDG_RUNTIME_DIR="$work" tools/with-display.sh \
    build/bin/orlo --sample --store "$work/preferences.db" --tour "$work"

largest=200000
mkdir -p docs/pictures
for picture in after:viewer preferences:preferences preferences-search:preferences-search \
    preferences-import:preferences-import; do
    from="$work/${picture%%:*}.png"
    if [ "$(stat -c %s "$from")" -ge "$largest" ]; then
        echo "screenshots.sh: $from is too large for the repository" >&2
        exit 1
    fi
    install -m 644 "$from" "docs/pictures/${picture##*:}.png"
done
