#!/usr/bin/env bash
# clang-tidy over every source of ours, as .clang-tidy has it; needs a complete build in build/.
#   tools/tidy.sh            all sources
#   tools/tidy.sh PATTERN    those whose path matches
set -euo pipefail
cd "$(dirname "$0")/.."

# clang does not know the one option that is for GCC alone.
mkdir -p build/tidy
sed 's/ -fno-gnu-unique//' build/compile_commands.json >build/tidy/compile_commands.json

# What moc wrote and the deliberately odd libraries of the tests are left out.
git ls-files '*.cpp' | grep -E "${1:-.}" | while read -r file; do
    grep -qF "\"$PWD/$file\"" build/tidy/compile_commands.json && printf '%s\n' "$file"
done | xargs -r -P "$(nproc)" -n 1 clang-tidy -p build/tidy --quiet
