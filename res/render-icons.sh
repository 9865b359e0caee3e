#!/bin/sh
# Renders the program's own icon: Vistrel.ico, in the four sizes that window lists and task switchers
# ask for, appicon.png for the dialogs, and icon-SIZE.png of each size (px) for the menus of desktops.
#
#   render-icons.sh DRAWING.svg FOLDER SIZE...
set -eu

drawing=$1 folder=$2
shift 2
for size in "$@"; do
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "$folder/icon-$size.png"
done

set --
for size in 16 32 48 256; do
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "$folder/appicon-$size.png"
    set -- "$@" "$folder/appicon-$size.png"
done
convert "$@" "$folder/Vistrel.ico"
rsvg-convert -w 128 -h 128 "$drawing" -o "$folder/appicon.png"
