#!/bin/sh
# Installs what is missing, builds everything and runs all tests, a virtual X server included.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

"$here/scripts/install-packages.sh" test
"$here/scripts/format.sh" --check
cmake --preset release -DBUILD_TESTING=ON -DKEYFLUENT_BENCH=ON -DKEYFLUENT_WERROR=ON
cmake --build --preset release

report="$here/build/test-report.txt"
status=0
ctest --preset release --output-log "$report" -j "$(nproc)" || status=$?

# The sanitizers look at the core and the console again, and four programs search for inputs that
# break them, for a minute each. The windows under the sanitizers take too long for here: see
# CONTRIBUTING.md.
cmake --preset asan -DKEYFLUENT_SHELL=OFF >/dev/null
cmake --build --preset asan
asan_report="$here/build-asan/test-report.txt"
ctest --preset asan --output-log "$asan_report" -j "$(nproc)" || status=$?

count() {
    cat "$report" "$asan_report" | sed -n "s/$1/\\1/p" | awk '{ n += $1 } END { print n + 0 }'
}
total=$(count '.* tests failed out of \([0-9]*\)$')
failed=$(count '^.*, \([0-9]*\) tests failed out of [0-9]*$')
echo "$((total - failed)) passed, $failed failed"
exit "$status"
