#!/usr/bin/env bash
# A session with every command of the tool, each in valgrind's memory checker: no bad read, no leak.
#   session.sh TOOL SOURCE_FOLDER
set -euo pipefail
tool=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Code that is made while the program runs looks to the checker as if it read too far.
export QT_ENABLE_REGEXP_JIT=0

checked() {
    local status=0
    valgrind -q --error-exitcode=99 --leak-check=full --errors-for-leak-kinds=definite --num-callers=30 \
        --suppressions="$source/Tests/valgrind/third-party.supp" \
        "$tool" --store "$work/preferences.db" "$@" >"$work/out" 2>"$work/errors" || status=$?
    if [ "$status" -ne "${expected:-0}" ]; then
        echo "session.sh: exit status $status of: $*" >&2
        grep -E '^==|^line|^Cannot' "$work/errors" >&2 || tail -n 5 "$work/errors" >&2
        exit 1
    fi
}

# Every module through every operation, then the scripts with the most traffic on their pages.
{
    printf '%s\n' defaults gui data apply newscene settled data apply
    for script in fileio/search-paths help/browse navigator/presets render-options/background \
        render-options/background-lists tesselation/qualities web-interface/confirmation; do
        echo
        cat "$source/Tests/scripts/$script.script"
    done
    printf '%s\n' 'put string "Camera fov" "no number"' 'gui' 'apply' 'unload' 'get "Camera fov"'
} >"$work/session.script"
checked script "$work/session.script"

checked list
checked set "Camera fov" 60
checked get "Camera fov"
checked diff
checked export "$work/exported.json"
checked reset --all
checked import "$work/exported.json"
expected=2 checked set "Camera fov" 1000
expected=2 checked get "Camera foz"
truncate -s 5000 "$work/preferences.db"
expected=1 checked check
checked reset "Camera fov"
checked check
