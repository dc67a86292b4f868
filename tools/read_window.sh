#!/usr/bin/env bash
# What a screen reader is told of the real window, in both languages: for reading through, not a test.
#
#   tools/read_window.sh OUTPUT_FOLDER [PROGRAM]
#
# PROGRAM is build/release/bin/tarnvik unless given. It runs as a copy in a folder of its own with a home of its own, on a
# display and a session bus of its own (READ_DISPLAY, :89 unless set). OUTPUT_FOLDER gets eng/ and nor/ with tree.txt and
# events.txt each. Needs the Debian packages xvfb, jwm, xdotool, x11-utils, dbus, at-spi2-core, python3-gi and gir1.2-atspi-2.0.
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: $0 OUTPUT_FOLDER [PROGRAM]" >&2
    exit 2
fi
tools=$(cd "$(dirname "$0")" && pwd)
if [ -z "${READ_WINDOW_BUS:-}" ]; then # again, with a session bus
    READ_WINDOW_BUS=1 exec dbus-run-session -- "$0" "$@"
fi
mkdir -p "$1/eng" "$1/nor"
out=$(cd "$1" && pwd)
program=$(realpath "${2:-$tools/../build/release/bin/tarnvik}")
export DISPLAY=${READ_DISPLAY:-:89}

work=$(mktemp -d)
mkdir "$work/home" "$work/runtime" "$work/program"
chmod 700 "$work/runtime"
cp "$program" "$(dirname "$program")"/*.csv "$(dirname "$program")/tarnvik.folder" "$work/program/"
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CURRENT_DESKTOP

. "$tools/display.sh"
started=()
trap 'end_started; rm -rf "$work"' EXIT
start_display 1280x900
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
started+=($!)

for language in Eng Nor; do
    sed -i "s/^Language;.*/Language;$language\r/" "$work/program/Tarnviksetup.csv"
    "$work/program/tarnvik" &
    window=$!
    started+=("$window")
    await '^Tarnvik: ' >/dev/null
    sleep 1
    timeout 120 /usr/bin/python3 "$tools/read_window.py" "$out/${language,,}"
    kill "$window"
    wait "$window" 2>/dev/null || true
done
