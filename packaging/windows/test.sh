#!/usr/bin/env bash
# test.sh FOLDER: what packaging/windows/build.sh left in FOLDER, under Wine: the tests of the core and of the window, the tool
# against that of this machine, which is built for it, the zip, the installer silently there and back, the installed program as a user
# drives it (FOLDER/pictures). Exit status 1 where something is wrong.
set -euo pipefail
cd "$(dirname "$0")/../.."
repository=$PWD
exec </dev/null

out=$(realpath "$1")
export TARNVIK_WINDOWS=${TARNVIK_WINDOWS:-$repository/build/windows}
version=$(sed -n 's/^project(tarnvik VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
wine=$repository/packaging/windows/wine.sh
bin=build/windows-release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "test.sh: $*" >&2
    exit 1
}

# Libraries beside the tests, as they lie in the folder.
cp "$TARNVIK_WINDOWS/stage/Tarnvik-$version"/*.dll "$TARNVIK_WINDOWS/qt/bin/Qt6Test.dll" "$bin/"
cp -r "$TARNVIK_WINDOWS/stage/Tarnvik-$version/plugins" "$TARNVIK_WINDOWS/stage/Tarnvik-$version/qt.conf" "$bin/"

ctest --preset windows --output-on-failure 2>&1 | tee "$work/ctest.log"
grep -q '100% tests passed, 0 tests failed out of [1-9]' "$work/ctest.log" || fail "tests failed"

echo "The tool of this machine, and what both make"
cmake --preset release >"$work/build.log"
cmake --build --preset release --parallel "${TARNVIK_JOBS:-$(nproc)}" --target tarnvik tarnvik-check tarnvik-paint >>"$work/build.log" ||
    fail "not built: $(tail "$work/build.log")"
for script in same_results same_report; do
    python3 "tests/windows/$script.py" build/release/bin/tarnvik-check "$wine" "$bin/tarnvik-check.exe"
done

echo "The folder, in a folder with other letters"
mkdir "$work/på skrivebordet"
(cd "$work/på skrivebordet" && unzip -q "$out/Tarnvik-$version-win64.zip")
tool="$work/på skrivebordet/Tarnvik-$version/tarnvik-check.exe"
[[ $("$wine" "$tool" --version) = "tarnvik-check $version"* ]] || fail "the tool does not tell its version"
(cd "$work" && "$wine" "$tool" --report "på.pdf" >summary.txt) || [ $? -le 1 ] || fail "no report"
pdftotext -layout "$work/på.pdf" "$work/report.txt"
grep -q Tarnvik "$work/report.txt" || fail "the report has no text"
[[ $("$wine" "$tool" --pictures "Z:$work/pictures") = *"pictures written"* ]] || fail "no pictures"

echo "The installer, there and back"
local_data=$(find "$TARNVIK_WINDOWS/wine/drive_c/users" -maxdepth 3 -name Local -path '*AppData*' | head -1)
installed=$local_data/Programs/Tarnvik
registry() { "$wine" reg query "$1" >/dev/null 2>&1; }
"$wine" "$out/Tarnvik-$version-setup.exe" /S || fail "the installer ended with $?"
for file in tarnvik.exe tarnvik-check.exe tarnvik-paint.exe Qt6Core.dll plugins/platforms/qwindows.dll uninstall.exe \
    TarnvikMaterial.csv "Documentation/Tarnvik User & Theory Manual.pdf" Licences/README.txt; do
    [ -s "$installed/$file" ] || fail "not installed: $file"
done
[ ! -e "$installed/tarnvik.folder" ] || fail "the installed program keeps its tables beside it"
registry 'HKCU\Software\Classes\.tnvik' && registry 'HKCU\Software\Classes\Tarnvik.Project\shell\open\command' || fail "no file type"
"$wine" "$installed/tarnvik-check.exe" --set P=12 >"$work/installed.txt" || [ $? -le 1 ] || fail "the installed tool does not run"
echo mine >"$installed/mine.txt"
"$wine" "$installed/uninstall.exe" /S || fail "the uninstall ended with $?"
for _ in $(seq 100); do # it goes on in a copy of itself
    [ -e "$installed/uninstall.exe" ] || break
    sleep 0.3
done
left=$(cd "$installed" && find . -type f)
[ "$left" = ./mine.txt ] || fail "left behind, or taken: $left"
rm -r "$installed"
for key in 'Classes\.tnvik' 'Classes\Tarnvik.Project' 'Microsoft\Windows\CurrentVersion\Uninstall\Tarnvik' Tarnvik Tarn-Vik; do
    ! registry "HKCU\\Software\\$key" || fail "left in the registry: $key"
done
[ -z "$(find "$TARNVIK_WINDOWS/wine/drive_c/users" -name 'Tarnvik*.lnk')" ] || fail "the shortcut is left"

echo "The window, beside that of this machine"
for dpi in 96 144; do
    packaging/windows/drive.sh "$out" "$out/pictures/$dpi" "$dpi"
done
echo "All as it should be"
