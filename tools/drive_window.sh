#!/usr/bin/env bash
# Drives the real window from outside, as a user does, and keeps a picture of each step: for looking at, not a test.
#
#   tools/drive_window.sh OUTPUT_FOLDER [PROGRAM]
#
# PROGRAM is build/release/bin/tarnvik unless given. It runs as a copy in a folder of its own with a home of its own, on a
# display of its own (DRIVE_DISPLAY, :88 unless set) under a plain window manager. Needs the Debian packages xvfb, jwm,
# xdotool, x11-utils and imagemagick. Places are pixels of the main window at 96 dpi, taken from its layout.
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: $0 OUTPUT_FOLDER [PROGRAM]" >&2
    exit 2
fi
mkdir -p "$1"
out=$(cd "$1" && pwd)
tools=$(dirname "$(realpath "$0")")
program=$(realpath "${2:-$tools/../build/release/bin/tarnvik}")
export DISPLAY=${DRIVE_DISPLAY:-:88}

work=$(mktemp -d)
mkdir "$work/home" "$work/runtime" "$work/projects"
chmod 700 "$work/runtime"
cp "$program" "$(dirname "$program")"/*.csv "$(dirname "$program")/tarnvik.folder" "$work/"
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime LC_ALL=C.UTF-8
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CURRENT_DESKTOP

. "$tools/display.sh"
started=()
trap 'end_started; rm -rf "$work"' EXIT
start_display 1280x900

settle() { # time to paint
    sleep 0.6
}
step=0
shot() {
    settle
    step=$((step + 1))
    import -window root "$out/$(printf '%02d' "$step")-$1.png"
    echo "$(printf '%02d' "$step") $1"
}
start() {
    (cd "$work/projects" && exec "$work/tarnvik" >>"$out/program.log" 2>&1) &
    tarnvik=$!
    started+=("$tarnvik")
    main=$(await '^Tarnvik: ')
    settle
}
leave() { # the last entry of the File menu
    click "$main" 18 8
    key Up Return
    wait "$tarnvik" # set -e: a program that ends otherwise than with 0 ends the drive
}

rm -f "$out"/*.png "$out/program.log"
start
shot start

# A force, accepted with Tab; the next box is the angle.
click "$main" 318 473
key ctrl+a
xdotool type 7.5
shot force-typed
key Tab
shot force-accepted

# What is no number is refused with a message; the box keeps the focus.
xdotool type x
key Tab
shot refused-message
key Return
shot refused-back
xdotool type 25
key Tab

for type in 2 3 4 5; do
    click "$main" $((63 + 87 * (type - 1))) 420
    shot "type-$type"
done

click "$main" 27 153
shot connectors
# A list that drops down, and a row of it: three bolts, then six.
click "$main" 234 153
shot list-of-numbers
key End Return
shot most-bolts
click "$main" 372 550
shot alternative-2

# Free dimensions.
click "$main" 24 302
click "$main" 286 305 # enters the box, which selects its text
xdotool type 198
key Tab
xdotool type 48
key Tab
shot free-dimensions

click "$main" 104 8
classes=$(await '^(Classes|Klasser)$')
shot classes
click "$classes" 30 95
shot class-picked
key Return
click "$classes" 262 160
gone '^(Classes|Klasser)$'
shot classes-closed

click "$main" 57 8
setup=$(await '^Setup$')
shot setup
click "$setup" 79 136
shot setup-norwegian
click "$setup" 278 313
gone '^Setup$'
shot norwegian
for type in 1 2 3 4 5; do
    click "$main" $((63 + 87 * (type - 1))) 420
    shot "norwegian-type-$type"
done
click "$main" 104 8
await '^(Classes|Klasser)$' >/dev/null
shot norwegian-classes
key alt+F4
gone '^(Classes|Klasser)$'

click "$main" 18 8
shot file-menu
key Down Down Down Return
settle
shot save-as
key ctrl+a
xdotool type "$work/projects/Hallen æøå & co"
key Return
shot saved
ls "$work/projects"
click "$main" 18 8
shot file-menu-with-recent
key Escape

leave
start
shot restarted
click "$main" 18 8
key Down Down Down Down Return
shot opened-from-recent

xdotool mousemove --window "$main" 262 8 click 1
shot help-menu
key Up Return
shot about
key Escape
leave
echo "left as it should"
