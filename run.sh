#!/bin/sh
# Installs what is missing, builds KeyFluent and starts it in the user's own KeyFluent folder.
#
# usage: ./run.sh [--build-only]
#
# On a machine without a display the program starts on a virtual one.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
cd "$here"

"$here/scripts/install-packages.sh" build
cmake --preset release -DBUILD_TESTING=OFF -DKEYFLUENT_BENCH=OFF >/dev/null
cmake --build --preset release --target keyfluent keyfluent-headless installation
[ "${1:-}" != --build-only ] || exit 0

# The launcher makes the folder with a link to the program, its sounds and its first preferences.
start="$here/packaging/keyfluent-launcher.sh"
export KEYFLUENT_PROGRAM="$here/build/keyfluent"
export KEYFLUENT_DATA="$here/build/installation"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$start"
fi

# -displayfd lets the server choose a free number and tells it.
scratch=$(mktemp -d)
server=
manager=
viewer=
finish() {
    for process in $viewer $manager $server; do
        kill "$process" 2>/dev/null || true
    done
    [ -z "$server" ] || wait "$server" 2>/dev/null || true
    rm -rf "$scratch"
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/number" 2>"$scratch/server.log" &
server=$!
tries=0
until [ -s "$scratch/number" ]; do
    tries=$((tries + 1))
    if [ "$tries" -gt 100 ]; then
        echo "The virtual display did not start:" >&2
        cat "$scratch/server.log" >&2
        exit 1
    fi
    sleep 0.1
done
DISPLAY=":$(cat "$scratch/number")"
export DISPLAY
openbox >/dev/null 2>&1 &
manager=$!
x11vnc -display "$DISPLAY" -localhost -nopw -forever -shared -quiet -autoport 5900 \
    >"$scratch/port" 2>/dev/null &
viewer=$!
tries=0
until grep -q '^PORT=' "$scratch/port" || [ "$tries" -gt 50 ]; do
    tries=$((tries + 1))
    sleep 0.1
done
port=$(sed -n 's/^PORT=//p' "$scratch/port" | head -n 1)
echo "This machine has no display: KeyFluent runs on the virtual display $DISPLAY."
echo "To look at it and use it, from this machine alone:"
[ -z "$port" ] || echo "    a VNC viewer at 127.0.0.1:$port"
echo "    a picture of it: xwd -display $DISPLAY -root -out keyfluent.xwd"
echo "Ctrl+C ends it."
"$start"
