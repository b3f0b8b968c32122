#!/bin/sh
# Makes the packages, installs each into a clean Debian that holds nothing else, starts it there as
# an ordinary user, and removes it again. Or takes a clone into a clean Debian that has only git, and
# builds and starts it there with the project's own commands. Needs root, the machine's sources of
# packages, and some minutes; not one of the quick tests.
#
# usage: packaging/check.sh [--cache FOLDER] [--pictures FOLDER] [--tests] packages|source
#
# --cache     keeps the clean Debian and the packages taken there, for the next time.
# --pictures  keeps pictures of the main window as each installation shows it.
# --tests     with source: runs ./test.sh there as well.
set -eu

here=$(cd "$(dirname "$0")/.." && pwd)
cache=
pictures=
tests=
while [ $# -gt 1 ]; do
    case "$1" in
    --cache) cache=$2 && shift 2 ;;
    --pictures) pictures=$2 && shift 2 ;;
    --tests) tests=yes && shift ;;
    *) break ;;
    esac
done
case "${1:-}" in
packages | source) what=$1 ;;
*)
    sed -n '/^# usage/,/^set/s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
if [ "$(id -u)" -ne 0 ]; then
    echo "check.sh: only root can make a clean Debian" >&2
    exit 1
fi

# --- Everything mounted and started below lives in mounts and processes of its own, which the
# --- system itself ends with this script, however it ends; the scratch folder goes after them.

if [ -z "${KEYFLUENT_CHECK_SCRATCH:-}" ]; then
    "$here/scripts/install-packages.sh" package
    KEYFLUENT_CHECK_SCRATCH=$(mktemp -d)
    export KEYFLUENT_CHECK_SCRATCH
    inside=
    finish() {
        if [ -n "$inside" ]; then
            kill -KILL "$inside" 2>/dev/null && wait "$inside" || true
        fi
        # What has just been ended may still have been writing.
        rm -rf --one-file-system "$KEYFLUENT_CHECK_SCRATCH" 2>/dev/null ||
            { sleep 1 && rm -rf --one-file-system "$KEYFLUENT_CHECK_SCRATCH"; }
    }
    trap finish EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    set -- ${cache:+--cache "$cache"} ${pictures:+--pictures "$pictures"} ${tests:+--tests} "$what"
    unshare --mount --pid --fork --kill-child --mount-proc "$here/packaging/check.sh" "$@" &
    inside=$!
    status=0
    wait "$inside" || status=$?
    inside=
    exit "$status"
fi
scratch=$KEYFLUENT_CHECK_SCRATCH
cache=${cache:-$scratch/cache}
pictures=${pictures:-$scratch/pictures}
mkdir -p "$cache/archives" "$pictures"
cache=$(cd "$cache" && pwd)
pictures=$(cd "$pictures" && pwd)

say() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf 'check.sh: %s\n' "$*" >&2
    exit 1
}

# --- A clean Debian.

# One line for each part of Debian itself that this machine takes packages from.
debian_sources() {
    # shellcheck disable=SC2016 # apt's own names
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u
}

make_base() {
    # shellcheck disable=SC1091
    . /etc/os-release
    [ -n "$(debian_sources)" ] || apt-get update -qq
    mirror=$(debian_sources | awk -v suite="$VERSION_CODENAME" '$3 == suite { print $2; exit }')
    [ -n "$mirror" ] || fail "this machine takes no packages of $VERSION_CODENAME"
    say "A clean $VERSION_CODENAME"
    base=$scratch/base
    debootstrap --variant=minbase "$VERSION_CODENAME" "$base" "$mirror" >"$scratch/debootstrap.log" ||
        fail "debootstrap: $(tail -n 3 "$scratch/debootstrap.log")"
    debian_sources >"$base/etc/apt/sources.list"
    apt-config dump | grep -i '^Acquire::.*::Proxy' >"$base/etc/apt/apt.conf.d/90proxy" || true
    # Nothing starts a service in the tree.
    printf '#!/bin/sh\nexit 101\n' >"$base/usr/sbin/policy-rc.d"
    chmod +x "$base/usr/sbin/policy-rc.d"
    rm -f "$base"/var/cache/apt/archives/*.deb
    tar -C "$base" --one-file-system -cf "$cache/base.tar.new" .
    mv "$cache/base.tar.new" "$cache/base.tar"
    rm -rf "$base"
}

# make_tree NAME: a fresh one in $tree, with an ordinary user.
make_tree() {
    [ -e "$cache/base.tar" ] || make_base
    tree=$scratch/$1
    mkdir "$tree"
    tar -C "$tree" -xf "$cache/base.tar"
    cp -L /etc/resolv.conf /etc/hosts "$tree/etc/"
    mount -t proc proc "$tree/proc"
    mount -t devpts devpts "$tree/dev/pts"
    mount --bind "$cache/archives" "$tree/var/cache/apt/archives"
    in_tree useradd --create-home --shell /bin/sh student
    in_tree apt-get update -qq
}

end_tree() {
    umount "$tree/var/cache/apt/archives" "$tree/dev/pts" "$tree/proc"
    rm -rf --one-file-system "$tree"
}

in_tree() {
    env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
        LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$tree" "$@"
}

install_in_tree() {
    in_tree apt-get install -y -qq --no-install-recommends "$@" >"$scratch/apt.log" 2>&1 ||
        fail "apt: $(tail -n 5 "$scratch/apt.log")"
}

# start_in_tree NAME LANGUAGE COMMAND: see start-installed.py.
start_in_tree() {
    /usr/bin/python3 -B "$here/packaging/start-installed.py" "$tree" "$3" "$2" "$pictures/$1.png"
    echo "$1: starts, signs a student in and keeps the file"
}

user_folder=home/student/.local/share/KeyFluent

# What the user's folder holds, the link apart, which follows the program.
user_files() {
    (cd "$tree/$user_folder" && find . -type f -exec sha256sum {} + | sort)
}

# Nothing that an installation brings may write into it: the program knows only the user's folder.
tree_files() {
    (cd "$1" && find . \( -type f -o -type l \) -printf '%p %s %T@ %l\n' | sort)
}

same() {
    [ "$1" = "$2" ] || fail "$3"
}

# --- Packages.

make_packages() {
    say "Building"
    (cd "$here" && cmake --preset package >/dev/null && cmake --build --preset package)
    build=$here/build-package
    rm -rf "$build/packages"
    (cd "$build" && cpack >"$scratch/cpack.log") || fail "cpack: $(tail -n 5 "$scratch/cpack.log")"
    deb=$(echo "$build"/packages/*.deb)
    folder=$(echo "$build"/packages/*.tar.gz)
    ls -l "$deb" "$folder"
}

check_words() {
    say "Checking what packages say of themselves"
    lintian --fail-on error,warning --allow-root "$deb" || fail "lintian objects"
    stage=$scratch/stage
    dpkg-deb -x "$deb" "$stage"
    desktop-file-validate "$stage/usr/share/applications/keyfluent.desktop"
    appstreamcli validate --no-net "$stage"/usr/share/metainfo/*.xml
    appstreamcli validate-tree --no-net "$stage" >"$scratch/appstream.log" ||
        fail "appstream: $(cat "$scratch/appstream.log")"
    for page in "$stage"/usr/share/man/man1/*.gz "$stage"/usr/share/man/*/man1/*.gz; do
        said=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
        same "$said" "" "$page: $said"
    done
    rm -rf "$stage"
}

check_deb() {
    say "The Debian package"
    make_tree deb
    cp "$deb" "$tree/root/keyfluent.deb"
    install_in_tree /root/keyfluent.deb
    brought=$(in_tree dpkg -L keyfluent)
    before=$(tree_files "$tree/usr")
    start_in_tree deb english keyfluent
    same "$(tree_files "$tree/usr")" "$before" "the program wrote below /usr"

    # shellcheck disable=SC2046 # the list is words
    install_in_tree $(dpkg-deb -f "$deb" Recommends | tr -d ,)
    start_in_tree deb-with-all-it-recommends english keyfluent

    files=$(user_files)
    in_tree apt-get install -y -qq --reinstall /root/keyfluent.deb >"$scratch/apt.log" 2>&1
    same "$(user_files)" "$files" "installing again changed the user's files"
    in_tree apt-get purge -y -qq keyfluent >"$scratch/apt.log" 2>&1
    same "$(user_files)" "$files" "removing changed the user's files"
    for path in $brought; do
        case "$path" in
        *keyfluent*) [ ! -e "$tree$path" ] || fail "$path is still there" ;;
        esac
    done
    end_tree
}

# Two installations one after another in one tree, so that the second finds the folder of the first.
check_folder() {
    say "The folder that runs from anywhere"
    make_tree folder
    place="$tree/home/student/برامج تعليم"
    mkdir -p "$place"
    tar -C "$place" --no-same-owner -xf "$folder"
    name=$(ls "$place")
    # shellcheck disable=SC2046 # the list is words
    install_in_tree $(sed -n 's/^ *sudo apt install //p' "$place/$name/README.txt")
    start_in_tree folder arabic "'/home/student/برامج تعليم/$name/keyfluent'"
    files=$(user_files)
    mv "$place/$name" "$tree/opt/moved here"
    start_in_tree moved-folder arabic "'/opt/moved here/keyfluent'"
    same "$(user_files)" "$files" "moving the folder changed the user's files"
    same "$(readlink "$tree/$user_folder/keyfluent")" \
        "/opt/moved here/libexec/keyfluent/keyfluent" "the link did not follow"
    rm -rf "$tree/opt/moved here" "${tree:?}/$user_folder"

    say "cmake --install"
    DESTDIR=$tree cmake --install "$build" --prefix /opt/keyfluent >/dev/null
    start_in_tree installed english /opt/keyfluent/bin/keyfluent
    end_tree
}

# --- A clone.

# All that the tests stand on is found, and those run that need no further building.
few_tests='
    cd /root/keyfluent
    cmake --preset release -DBUILD_TESTING=ON -DKEYFLUENT_BENCH=ON >/dev/null
    cmake --build --preset release --target documents
    ctest --preset release -R "^packaging/|^desktop/first_steps|^sounds|^rooms"
'

check_source() {
    say "A clone in a clean Debian that has only git"
    make_tree source
    install_in_tree git
    git -C "$here" bundle create "$tree/root/keyfluent.bundle" HEAD 2>/dev/null
    in_tree git clone -q -c advice.detachedHead=false /root/keyfluent.bundle /root/keyfluent
    in_tree /root/keyfluent/run.sh --build-only </dev/null
    say "run.sh on a virtual display"
    in_tree /root/keyfluent/run.sh </dev/null >"$scratch/run.log" &
    run=$!
    tries=0
    until grep -q 'Ctrl+C ends it' "$scratch/run.log" && program=$(pgrep -x keyfluent); do
        tries=$((tries + 1))
        [ "$tries" -lt 150 ] || fail "run.sh did not start: $(cat "$scratch/run.log")"
        sleep 0.1
    done
    cat "$scratch/run.log"
    kill "$program"
    wait "$run" || true
    ! pgrep -x Xvfb >/dev/null || fail "run.sh leaves its display running"
    say "What the tests need"
    in_tree /root/keyfluent/scripts/install-packages.sh test </dev/null
    in_tree sh -ec "$few_tests" </dev/null
    [ -z "$tests" ] || in_tree /root/keyfluent/test.sh </dev/null
    end_tree
}

case "$what" in
packages)
    make_packages
    check_words
    check_deb
    check_folder
    ;;
source) check_source ;;
esac
say "All is well"
