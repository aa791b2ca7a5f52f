#!/usr/bin/env bash
# Sets the machine up, builds and runs all tests without a display.
#   ./test.sh              the tests, and ten seconds of fuzzing for each reader of what belongs to preferences
#   ./test.sh --sanitize   the tests under the address, undefined behaviour and leak sanitizers
#   ./test.sh --tidy       no tests: clang-tidy over all sources, which takes some twenty minutes
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

preset=default
tidy=no
for argument in "$@"; do
    case "$argument" in
    --sanitize) preset=sanitize ;;
    --tidy) tidy=yes ;;
    *) echo "test.sh: unknown argument $argument; it takes --sanitize or --tidy" >&2; exit 2 ;;
    esac
done

install_packages
build "$preset"
if [ "$tidy" = yes ]; then
    exec tools/tidy.sh
fi
ctest --preset "$preset" --parallel "$(nproc)"
[ "$preset" = sanitize ] || ./fuzz.sh --seconds 10 script import site store
