#!/bin/sh
# Starts KeyFluent in the user's own folder, which holds a link to the program, its sounds, the
# preferences and the students' files. The first start makes the folder.
#
# An installation sets the two places below; a folder for a class of its own is chosen with
# KEYFLUENT_FOLDER.
set -eu

program=${KEYFLUENT_PROGRAM:-@KEYFLUENT_PROGRAM@}
data=${KEYFLUENT_DATA:-@KEYFLUENT_DATA@}
folder=${KEYFLUENT_FOLDER:-${XDG_DATA_HOME:-$HOME/.local/share}/KeyFluent}

mkdir -p "$folder"
ln -sfn "$program" "$folder/keyfluent"
for sound in enter char space caps Back; do
    [ -e "$folder/$sound.wav" ] || cp "$data/sounds/$sound.wav" "$folder/$sound.wav"
done

# Arabic where the desktop speaks Arabic, English elsewhere; afterwards the file is the user's.
preferences="$folder/KeyFluent Preference.prf"
if [ ! -e "$preferences" ]; then
    case "${LC_ALL:-${LC_MESSAGES:-${LANG:-}}}" in
    ar | ar_* | ar.* | ar@*) language=ar ;;
    *) language=en ;;
    esac
    cp "$data/preferences/$language.prf" "$preferences"
fi

exec "$folder/keyfluent" "$@"
