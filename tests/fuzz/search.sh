#!/bin/sh
# Searches for inputs that break a rule of the core, all targets, two at a time, for hours.
#
# usage: search.sh BUILD HOURS
#
# BUILD is a folder of the asan preset. What breaks a rule is saved in BUILD/fuzz/, and so is what
# reaches new code, from which the next search goes on. The status is 1 when anything broke.
set -eu
if [ $# -ne 2 ]; then
    echo "usage: search.sh BUILD HOURS" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
half=$(awk "BEGIN { print int($2 * 1800) }")
found=$build/fuzz
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1

search() {
    mkdir -p "$found/$1"
    "$build/tests/fuzz/fuzz-$1" --seconds "$half" --seed "$(date +%s)" --keep "$found" \
        --grow "$found/$1" "$here/corpus/$1" "$found/$1"
}

status=0
for pair in "console positions" "student preferences"; do
    # shellcheck disable=SC2086 # the pair is two words
    set -- $pair
    search "$1" &
    first=$!
    search "$2" || status=1
    wait "$first" || status=1
done
exit "$status"
