#!/usr/bin/env bash
# Every source file is as clang-format would leave it.
set -euo pipefail
cd "$1"
find Apps Benchmarks Host Plugins Scene Sdk Tests -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror
