#!/usr/bin/env bash
# test_packages.sh FOLDER: installs the packages of FOLDER in a bare Debian 12 root and looks whether they do what they
# promise: both programs run, a report is painted, edited tables outlive an upgrade, a purge leaves nothing behind. Needs
# root, mmdebstrap and the network. BARE_ROOT is a tar file of such a root, made before. With SHOT=FILE.png (and Xvfb, jwm,
# xdotool, ImageMagick) the window is driven too: it opens a project, prints, and saves factors.
set -euo pipefail
debs=$(realpath "$1")
shot=$(realpath -m "${SHOT:-}")
exec </dev/null

root=$(mktemp -d)
cleanup() {
    [ -z "${server:-}" ] || kill "$server" || true
    for place in "$root"/tmp/.X11-unix "$root"/proc "$root"/dev; do
        ! mountpoint -q "$place" || umount "$place"
    done
    rm -rf "$root"
}
trap cleanup EXIT
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/home/engineer DEBIAN_FRONTEND=noninteractive \
        LC_ALL=C.UTF-8 ${DISPLAY_INSIDE:+DISPLAY=$DISPLAY_INSIDE} "$@"
}
tell() {
    printf '%s\n' "$*"
}

if [ -n "${BARE_ROOT:-}" ]; then
    tar -C "$root" -xf "$BARE_ROOT"
else
    mmdebstrap --quiet --variant=minbase --include=ca-certificates bookworm "$root"
fi
cp /etc/resolv.conf "$root/etc/"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mkdir -p "$root/debs" "$root/home/engineer"
cp "$debs"/*.deb "$root/debs/"

inside apt-get -qq update

# The tool alone needs no toolkit.
inside sh -c 'apt-get -qq install -y --no-install-recommends /debs/tarnvik-data_*.deb /debs/tarnvik-check_*.deb' >/dev/null
if inside sh -c 'ls /usr/lib/*/libQt6*' 2>/dev/null; then
    exit 1
fi
inside tarnvik-check --version
inside tarnvik-check --json --fields uf || [ $? -eq 1 ]
refused=$(inside tarnvik-check --report /tmp/report.pdf 2>&1 >/dev/null || true)
grep -q tarnvik-paint <<<"$refused"
inside tarnvik-check --sheet /tmp/sheet.html >/dev/null || [ $? -eq 1 ]
inside tarnvik-check --verify /tmp/sheet.html
tell "the tool runs without the toolkit"

inside sh -c 'apt-get -qq install -y --no-install-recommends /debs/tarnvik_*.deb xdg-utils libfile-mimeinfo-perl shared-mime-info desktop-file-utils' >/dev/null
inside tarnvik-check --report /tmp/report.pdf >/dev/null || [ $? -eq 1 ]
head -c 5 "$root/tmp/report.pdf" | grep -q '%PDF-'
inside tarnvik --version
cp "$(dirname "$0")/../examples/collar-beam.tnvik" "$root/home/engineer/"
[ "$(inside xdg-mime query filetype /home/engineer/collar-beam.tnvik)" = application/x-tarnvik-project ]
[ "$(inside xdg-mime query default application/x-tarnvik-project)" = tarnvik.desktop ]
test -f "$root/usr/lib/tarnvik/Documentation/Tarnvik User & Theory Manual.pdf"
tell "the window's package paints reports and opens its kind of file"

if [ -n "${SHOT:-}" ]; then
    mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    Xvfb :93 -screen 0 1280x1000x24 -nolisten tcp >/dev/null 2>&1 &
    server=$!
    sleep 1
    DISPLAY=:93 jwm >/dev/null 2>&1 &
    DISPLAY_INSIDE=:93 inside xdg-open /home/engineer/collar-beam.tnvik >/dev/null 2>&1 &
    DISPLAY=:93 timeout 60 xdotool search --sync --onlyvisible --name '^Tarnvik' >/dev/null
    sleep 3
    DISPLAY=:93 import -window root "$shot"
    test -f "$root/home/engineer/.local/share/tarnvik/TarnvikMaterial.csv"
    tell "the window opens a project by xdg-open and fills the user's folder: $shot"

    main=$(DISPLAY=:93 xdotool search --onlyvisible --name '^Tarnvik' | tail -1)
    DISPLAY=:93 xdotool key Return # the word of the first start
    sleep 1
    DISPLAY=:93 xdotool key ctrl+p
    DISPLAY=:93 timeout 20 xdotool search --sync --onlyvisible --name '^Print$' >/dev/null
    sleep 1
    DISPLAY=:93 import -window root "${shot%.png}-print.png"
    DISPLAY=:93 xdotool key Return
    sleep 3
    printed=$(find "$root" -xdev -maxdepth 3 -name '*.pdf' -newer "$shot" -print -quit)
    head -c 5 "$printed" | grep -q '%PDF-'
    tell "it prints a PDF: ${printed#"$root"}"

    # The factor of sawn timber, saved: places are pixels of the window at 96 dpi.
    DISPLAY=:93 xdotool mousemove --window "$main" 57 8 click 1
    setup=$(DISPLAY=:93 timeout 20 xdotool search --sync --onlyvisible --name '^Setup$' | tail -1)
    sleep 1
    DISPLAY=:93 xdotool mousemove --window "$setup" 264 97 click --repeat 2 1 key ctrl+a type 1.15
    DISPLAY=:93 xdotool key Tab
    sleep 1
    DISPLAY=:93 import -window root "${shot%.png}-setup.png"
    DISPLAY=:93 xdotool mousemove --window "$setup" 184 313 click 1
    sleep 1
    saved=$root/home/engineer/.local/share/tarnvik/Tarviksetup.csv
    grep -q '1[.,]15' "$saved"
    tell "it saves factors into the user's folder: ${saved#"$root"}"
    DISPLAY=:93 xdotool key alt+F4
    sleep 1
    DISPLAY=:93 xdotool key ctrl+q
    sleep 1
fi

# An upgrade keeps what an administrator has edited.
echo "# of the office" >>"$root/etc/tarnvik/TarnvikMaterial.csv"
mkdir -p "$root/debs/next"
for deb in "$root"/debs/*.deb; do
    name=$(basename "$deb")
    mkdir "$root/debs/unpacked"
    dpkg-deb -R "$deb" "$root/debs/unpacked"
    sed -i 's/1\.2\.0-1/1.2.0-2/' "$root/debs/unpacked/DEBIAN/control"
    dpkg-deb --root-owner-group -b "$root/debs/unpacked" "$root/debs/next/$name" >/dev/null
    rm -rf "$root/debs/unpacked"
done
inside sh -c 'dpkg -i /debs/next/*.deb' >/dev/null
grep -q "of the office" "$root/etc/tarnvik/TarnvikMaterial.csv"
inside tarnvik-check --fields uf || [ $? -eq 1 ]
tell "an upgrade keeps an edited table"

inside apt-get -qq purge -y tarnvik tarnvik-check tarnvik-data >/dev/null
left=$(find "$root" -xdev \( -path "$root/proc" -o -path "$root/debs" -o -path "$root/home" -o -path "$root/tmp" \) -prune -o \
    -iname '*tarnvik*' -print | grep -v '/var/log\|/var/lib/apt\|/var/cache' || true)
if [ -n "$left" ]; then
    tell "left behind: $left" >&2
    exit 1
fi
tell "a purge leaves nothing behind"
