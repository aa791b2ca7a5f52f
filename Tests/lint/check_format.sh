#!/usr/bin/env bash
# Every source file is as clang-format would leave it. Its versions do not agree in everything, so one of them decides;
# where only another is installed nothing is checked, and the test counts as skipped.
set -euo pipefail
cd "$1"
version=14
formatter=$(type -P "clang-format-$version" || type -P clang-format)
if ! "$formatter" --version | grep -q "version $version\."; then
    echo "Not checked: clang-format $version decides, and here is $("$formatter" --version)"
    exit 77
fi
find Apps Benchmarks Host Plugins Scene Sdk Tests -name '*.cpp' -o -name '*.h' | xargs "$formatter" --dry-run --Werror
