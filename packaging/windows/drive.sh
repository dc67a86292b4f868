#!/usr/bin/env bash
# drive.sh FOLDER PICTURES [DPI]: installs Tarnvik-VERSION-setup.exe of FOLDER in a Wine of its own and drives the installed program
# as a user does, at 96 dots per inch or at DPI: start from the menu, type, save under a name with "ø", end, open by double click,
# details, report as PDF, factors saved, uninstall. What lies on the disk afterwards is looked at, and the windows are held against
# those of this machine's program (build/release, ./test.sh), pixel by pixel; PICTURES gets them all. Exit status 1 where something
# is wrong. Needs Xvfb, jwm, xdotool, ImageMagick and poppler-utils; places are pixels of the windows at 96 dots per inch.
set -euo pipefail
cd "$(dirname "$0")/../.."
exec </dev/null

version=$(sed -n 's/^project(tarnvik VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
installer=$(realpath "$1")/Tarnvik-$version-setup.exe
mkdir -p "$2"
pictures=$(realpath "$2")
rm -f "$pictures"/*
dpi=${3:-96}
bin=$PWD/build/release/bin
wine=$PWD/packaging/windows/wine.sh
export DISPLAY=${DRIVE_DISPLAY:-:89}

work=$(mktemp -d)
export TARNVIK_WINDOWS=$work HOME=$work/home XDG_RUNTIME_DIR=$work/runtime LC_ALL=C.UTF-8
mkdir -p "$work/projects/bjørk" "$work/here" "$HOME" "$work/runtime"
chmod 700 "$work/runtime"
unset QT_QPA_PLATFORM XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME

. tools/display.sh
started=()
finish() {
    WINEPREFIX=$work/wine /usr/lib/wine/wineserver64 -k 2>/dev/null || true
    end_started
    sleep 1
    rm -rf "$work"
}
trap finish EXIT
fail() {
    import -window root "$pictures/failed.png" || true
    echo "drive.sh: $*" >&2
    exit 1
}
start_display 1920x1300

enter() {
    xdotool type --delay 40 "$1"
    sleep 0.4
}
picture() { # side name window: there it is taken again while it differs, since a caret blinks
    sleep 1
    for _ in $(seq 10); do
        import -window "$3" "$pictures/$2-$1.png"
        if [ "$1" = here ] || [ ! -e "$pictures/$2-here.png" ] || [ "$(differing "$2")" = 0 ]; then
            break
        fi
        sleep 0.3
    done
}
differing() { # name: how many pixels
    compare -metric AE "$pictures/$1-here.png" "$pictures/$1-there.png" null: 2>&1 || true
}
# windows SIDE: the same looks on both sides.
windows() {
    main=$(await '^Tarnvik: ')
    sleep 2
    import -window root "$pictures/0-first-start-$1.png"
    key Return # the word of the first start
    click "$main" 200 54
    key ctrl+a
    picture "$1" 1-start "$main"
    click "$main" 318 473
    key ctrl+a
    enter 7.5
    key Tab
    picture "$1" 2-typed "$main"
    for type in 2 3 4 5; do
        click "$main" $((63 + 87 * (type - 1))) 420
        picture "$1" "3-type-$type" "$main"
    done
    click "$main" 27 153
    picture "$1" 4-connectors "$main"
    key ctrl+d
    details=$(await '^Detailed')
    picture "$1" 5-details "$details"
    key Return
    gone '^Detailed'
    click "$main" 104 8
    classes=$(await '^Classes$')
    picture "$1" 6-classes "$classes"
    click "$classes" 262 160
    gone '^Classes$'
    click "$main" 57 8
    setup=$(await '^Setup$')
    picture "$1" 7-setup "$setup"
    click "$setup" 79 136
    click "$setup" 278 313
    gone '^Setup$'
    picture "$1" 8-norwegian "$main"
    click "$main" 57 8
    setup=$(await '^Setup$')
    click "$setup" 79 102
    click "$setup" 278 313
    gone '^Setup$'
}

# This machine's program, with a home of its own.
cp "$bin/tarnvik" "$bin/tarnvik-check" "$bin/tarnvik-paint" data/*.csv "$work/here/"
QT_FONT_DPI=$dpi "$work/here/tarnvik" >"$work/here.log" 2>&1 &
here=$!
started+=("$here")
windows here
kill "$here"
wait "$here" || true

"$wine" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null
WINEPREFIX=$work/wine /usr/lib/wine/wineserver64 -k || true
sleep 1
"$wine" "$installer" /S || fail "the installer ended with $?"
user=$(find "$work/wine/drive_c/users" -maxdepth 3 -name Local -path '*AppData*' | head -1)
shortcut=$(find "$work/wine/drive_c/users" "$work/wine/drive_c/ProgramData" -name 'Tarnvik.lnk' | head -1)
[ -n "$shortcut" ] || fail "no shortcut in the menu"
sed -i 's/^Language;.*/Language;Eng\r/' "$user/Programs/Tarnvik/Tarnviksetup.csv"
timeout 60 "$wine" start /unix "$shortcut" || fail "the shortcut does not start it"
windows there
for name in "$pictures"/[1-9]-*-here.png; do
    name=$(basename "$name" -here.png)
    [ "$(differing "$name")" = 0 ] || fail "$name: $(differing "$name") pixels differ"
done
echo "$(find "$pictures" -name '[1-9]-*-here.png' | wc -l) windows the same, pixel by pixel, at $dpi dpi"

project=$work/projects/bjørk/høyde.tnvik
key ctrl+shift+s
await '^(Save|Lagre)' >/dev/null
sleep 1
key ctrl+a
enter "Z:${project//\//\\}"
import -window root "$pictures/9-save.png"
key Return
await 'høyde' >/dev/null
[ -s "$project" ] || fail "not saved: $project"
key ctrl+q
gone 'Tarnvik: '
for key_name in .tnvik Tarnvik.Project; do # Wine opens by the machine's classes; Windows sees the user's among them
    "$wine" reg copy "HKCU\\Software\\Classes\\$key_name" "HKLM\\Software\\Classes\\$key_name" /s /f >/dev/null
done
timeout 60 "$wine" start /unix "$project" || fail "nothing opens a project"
main=$(await 'høyde')
sleep 2
picture there 10-opened "$main"

key ctrl+p
sleep 2
import -window root "$pictures/11-print.png"
key ctrl+a
enter "Z:${work//\//\\}\\projects\\bjørk\\rapport på ås.pdf"
key Return
for _ in $(seq 100); do
    [ -s "$work/projects/bjørk/rapport på ås.pdf" ] && break
    sleep 0.1
done
sleep 1
(cd "$work/projects" && "$work/here/tarnvik-check" --report here.pdf bjørk/høyde.tnvik >/dev/null) || [ $? -le 1 ]
cp "$work/projects/bjørk/rapport på ås.pdf" "$pictures/report.pdf"
python3 tests/windows/same_report.py "$work/projects/here.pdf" "$work/projects/bjørk/rapport på ås.pdf" || fail "another report"

click "$main" 57 8
setup=$(await '^Setup$')
sleep 1
click "$setup" 264 97
key ctrl+a
enter 1.15
key Tab
import -window root "$pictures/12-setup.png"
click "$setup" 184 313
sleep 1
grep -q '1[.,]15' "$user/tarnvik/Tarviksetup.csv" || fail "the factor is not saved"
key alt+F4
gone '^Setup$'
key ctrl+q
gone 'Tarnvik: '

"$wine" "$user/Programs/Tarnvik/uninstall.exe" /S || fail "the uninstall ended with $?"
for _ in $(seq 100); do
    [ -e "$user/Programs/Tarnvik" ] || break
    sleep 0.3
done
[ ! -e "$user/Programs/Tarnvik" ] || fail "left: $(find "$user/Programs/Tarnvik")"
left=$(find "$work/wine/drive_c" -iname '*tarn*vik*' -printf '%P\n' | sort)
[ "$left" = "$(find "$user/tarnvik" "$user/tarnvik"/* -maxdepth 0 -iname '*tarn*vik*' -printf '%p\n' | sed "s|^$work/wine/drive_c/||" | sort)" ] ||
    fail "left behind: $left"
for name in "$user"/tarnvik/*; do
    echo "the user's own: ${name#"$user"/}"
done
registry=$("$wine" reg query 'HKCU\Software' /s | tr -d '\r')
grep -q Wine <<<"$registry" || fail "the registry is not told"
! grep -i 'tarn-\?vik' <<<"$registry" | grep -v '^ *.....Z:' || fail "left in the registry" # Wine keeps a list of menus there
[ -s "$project" ] || fail "the project is gone"
echo "Driven at $dpi dpi, all as it should be"
