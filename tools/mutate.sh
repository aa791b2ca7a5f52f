#!/usr/bin/env bash
# Changes one place of one source at a time and tells which changes no test notices.
#   tools/mutate.sh FOLDER... [--count N] [--seed S] [--again]
# See tools/mutate.py.
exec python3 "$(dirname "$0")/mutate.py" "$@"
