#!/bin/sh
# Renders the program's own icon: Vistrel.ico, in the four sizes that window lists and task switchers
# ask for, and appicon.png for the dialogs.
#
#   render-icons.sh DRAWING.svg FOLDER
set -eu

drawing=$1 folder=$2

set --
for size in 16 32 48 256; do
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "$folder/appicon-$size.png"
    set -- "$@" "$folder/appicon-$size.png"
done
convert "$@" "$folder/Vistrel.ico"
rsvg-convert -w 128 -h 128 "$drawing" -o "$folder/appicon.png"
