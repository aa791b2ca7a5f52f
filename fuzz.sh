#!/usr/bin/env bash
# Feeds what others may have written, wilfully damaged, to everything that reads it.
#   ./fuzz.sh                     every reader for ten seconds
#   ./fuzz.sh --seconds N [READER...]   longer, or only some of: script import site store, and of the formats of models:
#                                 step iges stl vrml obj gltf ply 3mf dae off
# An input that crashes, hangs or takes more than its share of memory is kept in build-fuzz/found.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

seconds=10
if [ "${1:-}" = --seconds ]; then
    seconds=${2:?fuzz.sh: --seconds takes a number}
    shift 2
fi
readers=("$@")
[ "${#readers[@]}" -gt 0 ] || readers=(script import site store step iges stl vrml obj gltf ply 3mf dae off)

install_packages
build fuzz "${readers[@]/#/fuzz-}"

mkdir -p build-fuzz/found
scratch=$(mktemp -d -p "$([ -d /dev/shm ] && echo /dev/shm || echo /tmp)")
trap 'rm -rf "$scratch"' EXIT
# A model is read in a process of its own, which may crash; what crashed there is told by its report.
export ASAN_OPTIONS=symbolize=1:handle_abort=1:allocator_may_return_null=1
export LSAN_OPTIONS=suppressions=Tests/fuzz/leaks.supp:print_suppressions=0
for reader in "${readers[@]}"; do
    corpus=build-fuzz/corpus/$reader
    mkdir -p "$corpus"
    echo "fuzz.sh: $reader for $seconds s"
    log=build-fuzz/$reader.log
    if ! TMPDIR=$scratch build-fuzz/bin/fuzz-"$reader" -max_total_time="$seconds" -max_len=16384 -timeout=10 \
        -rss_limit_mb=1024 -malloc_limit_mb=256 -dict=Tests/fuzz/words.dict -print_final_stats=1 \
        -artifact_prefix="build-fuzz/found/$reader-" "$corpus" "Tests/fuzz/seeds/$reader" >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "fuzz.sh: $reader failed; $log tells more" >&2
        exit 1
    fi
    grep -E "number_of_executed_units|peak_rss_mb" "$log"
done
