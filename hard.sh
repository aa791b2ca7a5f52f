#!/usr/bin/env bash
# An hour of hard use, under the sanitizers: fuzzers, random operations, programs on one store, kills and faults at every
# call of a save, full disks, attacks on the web server. It is no part of the usual run.
#   ./hard.sh [--minutes N] [--seed S] [--only WORD]   ends with status 1 where it found something
# What it found is printed and kept in build-sanitize/hard.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

install_packages
build sanitize
build fuzz
cc -shared -fPIC -O1 -Wall -Wextra -o build-sanitize/bin/failing_calls.so Tests/hard/failing_calls.c -ldl
export ASAN_OPTIONS=abort_on_error=1
export LSAN_OPTIONS=suppressions=$PWD/Tests/Support/leaks.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
exec tools/with-display.sh python3 Tests/hard/hard.py build-sanitize build-fuzz "$@"
