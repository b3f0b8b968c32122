#!/bin/sh
# Takes the pictures of all windows in both languages that are kept in docs/screens.
#
# usage: make-screens.sh [FOLDER [RATIO [NAME...]]]
#
# Into another folder; RATIO device pixels to a pixel of the layout, 1 if not told; with names, those
# of all pictures whose names begin with one of them. The windows draw themselves, so that no display
# is needed. Where optipng is installed it makes the files smaller.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
cd "$here"
folder=${1:-docs/screens}
ratio=${2:-1}
[ $# -lt 2 ] || shift
[ $# -lt 1 ] || shift

"$here/scripts/install-packages.sh" test
cmake --preset release -DBUILD_TESTING=ON >/dev/null
cmake --build --preset release --target keyfluent-screenshots
"$here/build/tests/shell/keyfluent-screenshots" "$folder" "$ratio" "$@"
if command -v optipng >/dev/null 2>&1; then
    find "$folder" -name '*.png' -exec optipng -quiet -o2 {} +
fi
