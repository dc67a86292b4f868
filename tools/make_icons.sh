#!/usr/bin/env bash
# Makes the PNG files of the program's icon from frontend/resources/tarnvik.svg. They are committed: the build needs no
# SVG renderer, and the program none at run time. For Windows they are joined in one file. To be run after each change of
# the drawing; needs rsvg-convert and icotool (Debian packages librsvg2-bin, icoutils).
set -euo pipefail
cd "$(dirname "$0")/../frontend/resources"

for size in 16 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" --output "tarnvik-$size.png" tarnvik.svg
done
icotool --create --output=../../packaging/windows/tarnvik.ico tarnvik-{16,32,48,64,128}.png --raw=tarnvik-256.png
