#!/usr/bin/env bash
# Makes the pictures in docs/pictures anew, with the viewer as it was built last. Needs no display, and root: for the
# time of the pictures a site of their own stands in /etc/xdg, with a lock and a profile.
set -euo pipefail
cd "$(dirname "$0")/.."

[ -x build/bin/orlo ] || { echo "screenshots.sh: build/bin/orlo is not there; build first" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/site/orlo/profiles" "$work/english" "$work/japanese"
cat > "$work/site/orlo/site.json" <<'SITE'
{"Powerwall width": {"locked": true, "value": 2400, "reason": "The wall in the review room is 2.4 m wide."}}
SITE

# A home and a store of its own: the pictures show what everyone sees at the first start.
with_settings_of() {
    local who="$work/$1" program=$2
    shift 2
    HOME="$who" XDG_CONFIG_HOME="$who" XDG_RUNTIME_DIR="$who" \
        unshare --mount bash -c 'mount --bind "$0" /etc/xdg && exec "$@"' "$work/site" \
        tools/with-display.sh "build/bin/$program" --store "$who/preferences.db" "$@"
}

with_settings_of english orlo-prefs profile save Presentation
mv "$work/english/profiles/Presentation.json" "$work/site/orlo/profiles"
with_settings_of english orlo-prefs profile save Review
japanese=2
with_settings_of english orlo --sample --tour "$work/english"
with_settings_of japanese orlo-prefs set "MainWindow user language" "$japanese"
with_settings_of japanese orlo --sample --tour "$work/japanese"
mv "$work/japanese/preferences.png" "$work/english/preferences-japanese.png"
mv "$work/english/after.png" "$work/english/viewer.png"

largest=200000
mkdir -p docs/pictures
for name in viewer import \
    preferences{,-search,-changed,-card,-changes,-applied,-rows,-profiles,-history,-import,-locks,-dark,-panel,-japanese}; do
    from="$work/english/$name.png"
    [ -f "$from" ] || { echo "screenshots.sh: $name.png was not made" >&2; exit 1; }
    if [ "$(stat -c %s "$from")" -ge "$largest" ]; then
        echo "screenshots.sh: $name.png is too large for the repository" >&2
        exit 1
    fi
    install -m 644 "$from" "docs/pictures/$name.png"
done
