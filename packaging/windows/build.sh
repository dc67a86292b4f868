#!/usr/bin/env bash
# build.sh [FOLDER]: on a bare Debian 12, builds Tarnvik for 64-bit Windows 10 and later and leaves in FOLDER (release/ without)
#
#   Tarnvik-VERSION-setup.exe  the installer, for the user who runs it
#   Tarnvik-VERSION-win64.zip  the folder that runs wherever it is unpacked
#
# What takes long, Qt above all, is kept in $TARNVIK_WINDOWS (build/windows without): the next run finds it there. Afterwards the
# tests run under Wine; TARNVIK_SKIP_TESTS=1 leaves them out. Needs root, or sudo, where packages are missing.
set -euo pipefail
cd "$(dirname "$0")/../.."
repository=$PWD
exec </dev/null

out=$(realpath -m "${1:-release}")
export TARNVIK_WINDOWS=${TARNVIK_WINDOWS:-$repository/build/windows}
step() {
    printf '\n=== %s (after %d s)\n' "$1" "$SECONDS"
}

step "packages of Debian"
. tools/setup.sh
install_sources
install_missing "${build_packages[@]}" "${windows_packages[@]}" "${windows_release_packages[@]}"

SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH

step "libraries"
packaging/windows/libraries.sh
step "Qt"
packaging/windows/qt.sh

step "Tarnvik"
cmake --preset windows
cmake --build --preset windows --parallel "${TARNVIK_JOBS:-$(nproc)}"

step "folder"
version=$(sed -n 's/^project(tarnvik VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
stage=$TARNVIK_WINDOWS/stage
name=Tarnvik-$version
rm -rf "$stage"
cmake --install build/windows-release --component portable --prefix "$stage/$name" --strip
python3 packaging/windows/folder.py "$stage/$name" "$TARNVIK_WINDOWS"
find "$stage" -exec touch --date="@$SOURCE_DATE_EPOCH" {} +

step "installer and zip"
mkdir -p "$out"
rm -f "$out/$name-win64.zip" "$out/$name-setup.exe"
(cd "$stage" && find "$name" | LC_ALL=C sort | TZ=UTC zip -q -X -9 "$out/$name-win64.zip" -@)
rm "$stage/$name/tarnvik.folder" # installed, the tables are the user's own
(
    cd "$stage/$name"
    find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | tr / '\\' | LC_ALL=C sort
    find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | tr / '\\' | LC_ALL=C sort -r
) >"$stage/files.nsh"
(cd packaging/windows && makensis -V2 "-DVERSION=$version" "-DFOLDER=$stage/$name" "-DFILELIST=$stage/files.nsh" \
    "-DSIZE=$(du -sk "$stage/$name" | cut -f1)" "-DOUTPUT=$out/$name-setup.exe" installer.nsi)

if [ "${TARNVIK_SKIP_TESTS:-}" != 1 ]; then
    step "tests"
    packaging/windows/test.sh "$out"
fi

step "done"
du -sh "$TARNVIK_WINDOWS/qt" "$stage/$name"
ls -l "$out/$name"*
