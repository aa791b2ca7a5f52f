#!/usr/bin/env bash
# Renders every model of a folder and compares with what its models.tsv expects.
#   tools/try-models.sh FOLDER [PATTERN]    all models, or those whose line matches
# models.tsv has a line a file, with tabs between: file, source, path, exit status (several with | between), triangles,
# and notes. Prints each file that is not as expected; pictures and messages stay in build/models.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
folder=${1:?which folder?}
pattern=${2:-.}
out=$here/build/models
mkdir -p "$out"
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-xcb}

good=0
bad=0
# Empty fields count, which the shell passes over between tabs.
while IFS=\| read -r file status triangles; do
    [ "$file" != file ] || continue
    [[ $file =~ $pattern ]] || continue
    name=$(tr '/ ' '__' <<<"$file")
    rc=0
    timeout 300 "$here/build/bin/orlo" --store "$out/none.db" --render "$folder/$file" --output "$out/$name.png" \
        --size 320x240 >"$out/$name.txt" 2>&1 </dev/null || rc=$?
    counted=$(sed -n 's/^triangles //p' "$out/$name.txt")
    fault=
    [[ ",$status," == *",$rc,"* ]] || fault="exit status $rc, expected $status"
    if [ -z "$fault" ] && [ "$rc" = 0 ] && [ -n "$triangles" ] && [ "$counted" != "$triangles" ]; then
        fault="$counted triangles, expected $triangles"
    fi
    if [ -z "$fault" ]; then
        good=$((good + 1))
    else
        bad=$((bad + 1))
        printf '%s: %s: %s\n' "$file" "$fault" "$(grep -m 1 '^orlo: ' "$out/$name.txt" || true)"
    fi
done < <(awk -F'\t' -v OFS='|' '{ gsub(/\|/, ",", $4); print $1, $4, $5 }' "$folder/models.tsv")
echo "$good as expected, $bad not"
[ "$bad" = 0 ]
