#!/usr/bin/env bash
# docs/settings.md is what the modules say today. To bring it up to date:
#   build/bin/orlo-prefs --store "$(mktemp -u)" list --markdown > docs/settings.md
set -euo pipefail
tool=$1
repository=$2
diff -u "$repository/docs/settings.md" <("$tool" --store "$(mktemp -u)" list --markdown) ||
    { echo "docs/settings.md is stale; write it anew with: orlo-prefs list --markdown"; exit 1; }
