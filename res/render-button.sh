#!/bin/sh
# Renders one button: the icon on the button's face, in its three states, as BASE_up.bmp (normal),
# BASE_dw.bmp (pressed) and BASE_ds.bmp (disabled).
#
#   render-button.sh ICON.svg main|half|tile FOLDER
#
# main  640x332, the buttons along the bottom of the window
# half  640x166, as wide as those and half as high, for the two that stand on one another: on the
#                smallest screen, 1024 pixels wide, high enough for a finger, 44 pixels
# tile   96x72, in the corner of a picture, without a caption
set -eu

here=$(dirname "$0")
icon=$1 kind=$2 folder=$3
base=$(basename "$icon" .svg)

# The icon stays in the left two fifths of a captioned button; the caption lies over the rest.
# The program shrinks the captioned bitmaps to a sixth of the screen by picking the nearest pixel,
# which makes sharp edges jagged. The blur spreads each edge over the pixels that are left out, and
# is too small to be seen where the bitmap is shown whole. Tiles are never shrunk, so never blurred.
case $kind in
main) width=640 height=332 margin=6 radius=36 rim=5 ring=10 left=40 top=70 size=192 blur=1.4 ;;
half) width=640 height=166 margin=6 radius=36 rim=5 ring=10 left=80 top=27 size=112 blur=1.4 ;;
tile) width=96 height=72 margin=1 radius=12 rim=2 ring=4 left=20 top=8 size=56 blur=0 ;;
*) echo "$0: no such kind of button: $kind" >&2; exit 2 ;;
esac

# button STATE SINK: the whole button as SVG, its icon lowered by SINK pixels.
button()
{
    w=$((width - 2 * margin)) h=$((height - 2 * margin))
    cat <<END
<svg xmlns="http://www.w3.org/2000/svg" width="$width" height="$height" class="$1">
<rect width="$width" height="$height" fill="#000"/>
<rect class="edge" x="$margin" y="$margin" width="$w" height="$h" rx="$radius"/>
<rect class="face" x="$margin" y="$((margin + rim))" width="$w" height="$((h - rim))" rx="$radius"/>
<rect class="ring" x="$((margin + ring / 2))" y="$((margin + ring / 2))"
      width="$((w - ring))" height="$((h - ring))" rx="$((radius - ring / 2))"
      fill="none" stroke-width="$ring"/>
<svg x="$left" y="$((top + $2))" width="$size" height="$size" viewBox="0 0 192 192">
$(cat "$icon")
</svg>
</svg>
END
}

# render STATE SINK: a palette of 256 colours loses nothing that can be seen and halves the time the
# program needs to load its buttons.
render()
{
    button "$1" "$2" | rsvg-convert --stylesheet "$here/buttons.css" \
        | convert png:- -blur "0x$blur" -alpha off +dither -colors 256 -type Palette \
            -compress none "BMP3:$folder/${base}_$1.bmp"
}

render up 0
render dw $((height / 72))
render ds 0
