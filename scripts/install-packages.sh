#!/bin/sh
# Installs the Debian packages that a step needs and that are missing. Asks nothing.
#
# usage: install-packages.sh build|test|package
#
# build: what the program is built with, and what ./run.sh shows it with on a machine without a
# display. test: the same and what the tests want. package: the same as build and what makes packages
# and tries them out in a clean Debian.
set -eu

build_packages="g++ cmake ninja-build python3 librsvg2-bin qt6-base-dev libx11-dev
    libxcb1-dev libpulse-dev fonts-noto-core fonts-hosny-amiri fonts-dejavu-core
    fonts-dejavu-extra
    xvfb xauth openbox x11vnc x11-apps"
test_packages="libgtest-dev libgmock-dev libbenchmark-dev libhunspell-dev hunspell-en-us
    hunspell-ar pkg-config clang-format xdotool x11-xkb-utils x11-utils dbus-x11 at-spi2-core
    python3-pyatspi python3-xlib python3-gi gir1.2-atspi-2.0 poppler-utils weston qt6-wayland
    desktop-file-utils appstream mandoc cups-daemon cups-client cups-filters
    printer-driver-cups-pdf"
package_packages="dpkg-dev lintian man-db desktop-file-utils appstream debootstrap git
    procps dbus x11-xkb-utils python3-xlib"

case "${1:-}" in
build) wanted=$build_packages ;;
test) wanted="$build_packages $test_packages" ;;
package) wanted="$build_packages $package_packages" ;;
*)
    echo "usage: install-packages.sh build|test|package" >&2
    exit 2
    ;;
esac

missing=
for package in $wanted; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=
elif command -v sudo >/dev/null 2>&1; then
    as_root=sudo
else
    echo "These packages are missing and only root can install them:$missing" >&2
    exit 1
fi
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -qq
# shellcheck disable=SC2086 # the list is words
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    $missing >/dev/null
