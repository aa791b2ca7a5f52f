#!/usr/bin/env bash
# Sets the machine up, builds as for shipping and measures; prints each figure beside its goal.
#   ./bench.sh               the table
#   ./bench.sh --json FILE   and into the file as an array of {"name", "value", "goal", "holds"}
#   ./bench.sh --strict      with status 1 where a goal is missed
set -euo pipefail
calledFrom=$PWD
cd "$(dirname "$0")"
source tools/setup.sh

options=()
while [ $# -gt 0 ]; do
    case "$1" in
    --json)
        [ $# -gt 1 ] || { echo "bench.sh: --json needs a file" >&2; exit 2; }
        options+=(--json "$(cd "$calledFrom" && realpath "$2")")
        shift ;;
    --strict) options+=(--strict) ;;
    *) echo "bench.sh: unknown argument $1; it takes --json FILE and --strict" >&2; exit 2 ;;
    esac
    shift
done

install_packages bench
build bench
tools/with-display.sh python3 Benchmarks/report.py build-bench/bin "${options[@]}"
