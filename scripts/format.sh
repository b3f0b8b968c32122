#!/bin/sh
# Formats all C++ sources; with --check only tells which are not formatted, and fails then.
set -eu
cd "$(dirname "$0")/.."

sources=$(git ls-files --cached --others --exclude-standard '*.cpp' '*.h')
if [ "${1:-}" = --check ]; then
    # shellcheck disable=SC2086 # the list is words
    clang-format --dry-run --Werror $sources
else
    # shellcheck disable=SC2086
    clang-format -i $sources
fi
