#!/bin/sh
# Starts KeyFluent in the user's own folder, which holds a link to the program, its sounds, the
# preferences and the students' files. The first start makes the folder; a later one gives it what it
# lacks and never changes a file that is there. The link alone follows the program to where it is
# installed now.
#
# KEYFLUENT_FOLDER chooses another folder, such as one for a class. KEYFLUENT_PROGRAM and
# KEYFLUENT_DATA tell of a program that is not installed beside this launcher.
set -eu

installation=$(dirname "$(dirname "$(readlink -f "$0")")")
program=${KEYFLUENT_PROGRAM:-$installation/libexec/keyfluent/keyfluent}
data=${KEYFLUENT_DATA:-$installation/share/keyfluent}

# LANGUAGE counts where the desktop has a language at all.
desktop_is_arabic() {
    locale=${LC_ALL:-${LC_MESSAGES:-${LANG:-C}}}
    case "$locale" in
    C | POSIX) return 1 ;;
    esac
    case "${LANGUAGE:-$locale}" in
    ar | ar[_.@:]*) return 0 ;;
    esac
    return 1
}

# Who starts the program from a menu does not see its error output, so that a window says it too
# where something can show one. $1 and $2 are the sentence in English and Arabic, $3 the system's
# own words or nothing.
fail() {
    sentence=$1
    ! desktop_is_arabic || sentence=$2
    [ -z "${3:-}" ] || sentence="$sentence
$3"
    printf 'KeyFluent: %s\n' "$sentence" >&2
    if [ ! -t 2 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        if command -v zenity >/dev/null; then
            zenity --error --no-markup --title=KeyFluent --text="$sentence" || true
        elif command -v kdialog >/dev/null; then
            kdialog --title KeyFluent --error "$sentence" || true
        elif command -v xmessage >/dev/null; then
            xmessage -center "$sentence" || true
        fi
    fi
    exit 1
}

choose_folder() {
    folder=${KEYFLUENT_FOLDER:-}
    if [ -z "$folder" ]; then
        # A relative path in XDG_DATA_HOME is to be passed over.
        case "${XDG_DATA_HOME:-}" in
        /*) folder=$XDG_DATA_HOME/KeyFluent ;;
        *)
            [ -n "${HOME:-}" ] || fail "There is no home folder to keep the students' files in." \
                "لا يوجد مجلد شخصي تحفظ فيه ملفات الطلاب."
            folder=$HOME/.local/share/KeyFluent
            ;;
        esac
    fi
    case "$folder" in
    /*) ;;
    *) folder=$PWD/$folder ;;
    esac
}

make_folder() {
    [ -d "$folder" ] || reason=$(mkdir -p "$folder" 2>&1) ||
        fail "The folder \"$folder\" can't be made." "تعذر إنشاء المجلد \"$folder\"." "$reason"
}

cannot_write() {
    fail "Nothing can be written into the folder \"$folder\"." \
        "تعذرت الكتابة في المجلد \"$folder\"." "$1"
}

# In one step, as all below: two starts at once find no half of a thing.
renew_link() {
    [ "$(readlink "$folder/keyfluent")" != "$program" ] || return 0
    reason=$(ln -sfT "$program" "$folder/keyfluent" 2>&1) || cannot_write "$reason"
}

# put FILE NAME gives the folder a copy of the file where it has none, whole or not at all.
put() {
    [ ! -e "$folder/$2" ] || return 0
    half="$folder/.$2.$$"
    reason=$({ cat "$1" >"$half" && mv -n "$half" "$folder/$2"; } 2>&1) || {
        rm -f "$half"
        cannot_write "$reason"
    }
    rm -f "$half" # still there where another start was quicker
}

choose_folder
[ -x "$program" ] || fail "The program is not at \"$program\"." \
    "البرنامج غير موجود في \"$program\"."
make_folder
renew_link
for sound in enter char space caps Back; do
    put "$data/sounds/$sound.wav" "$sound.wav"
done
# Arabic where the desktop speaks Arabic, English elsewhere; afterwards the file is the user's.
if desktop_is_arabic; then
    put "$data/preferences/ar.prf" "KeyFluent Preference.prf"
else
    put "$data/preferences/en.prf" "KeyFluent Preference.prf"
fi

exec "$folder/keyfluent" "$@"
