#!/bin/sh
# Takes a picture of every window in both languages, into docs/screens.
#
# usage: make-screens.sh [FOLDER [RATIO]]
#
# RATIO device pixels to a pixel of the layout, 1 if not told.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
cd "$here"

"$here/scripts/install-packages.sh" test
cmake --preset release -DBUILD_TESTING=ON >/dev/null
cmake --build --preset release --target keyfluent-screenshots
"$here/build/tests/shell/keyfluent-screenshots" "${1:-docs/screens}" "${2:-1}"
