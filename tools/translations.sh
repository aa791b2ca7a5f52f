#!/usr/bin/env bash
# Takes the texts of all sources into the translations, which keep what they have: new texts come in unfinished, those
# that are gone leave. With a folder, the files there are changed instead of the repository's.
#   tools/translations.sh [FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
into=${1:-.}

update() {
    local file=$1 language=$2
    shift 2
    mkdir -p "$(dirname "$into/$file")"
    lupdate -silent -no-obsolete -locations none -source-language en -target-language "$language" \
        -extensions cpp,h,ui -I Sdk -I Sdk/OpenSG -I Host -I Scene -I Plugins/KernelPreferences "$@" -ts "$into/$file"
}

for language in zh_CN ja_JP ko_KR; do
    suffix=${language%_*}
    update "Translations/orlo_$suffix.ts" $language Sdk Host Scene Apps
    # An integrator may have the plug-in alone.
    update "Plugins/KernelPreferences/Translations/preferences_$suffix.ts" $language Plugins/KernelPreferences
done
