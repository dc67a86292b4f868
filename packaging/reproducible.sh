#!/usr/bin/env bash
# reproducible.sh: builds the packages of HEAD twice, in folders of different names, and compares them bit for bit. Takes
# as long as two builds of the programs.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for folder in one another/deeper; do
    mkdir -p "$work/$folder"
    git clone -q . "$work/$folder/tarnvik"
    TMPDIR="$work/$folder" TARNVIK_SKIP_TESTS=1 "$work/$folder/tarnvik/tools/release.sh" HEAD "$work/$folder/out"
done
if ! diff "$work/one/out/SHA256SUMS" "$work/another/deeper/out/SHA256SUMS"; then
    for file in "$work"/one/out/*.deb "$work"/one/out/*.tar.gz; do
        name=$(basename "$file")
        for folder in one another/deeper; do
            mkdir -p "$work/$folder/unpacked/$name"
            case $name in
                *.deb) dpkg-deb -R "$work/$folder/out/$name" "$work/$folder/unpacked/$name" ;;
                *) tar -C "$work/$folder/unpacked/$name" -xf "$work/$folder/out/$name" ;;
            esac
        done
    done
    diff -rq "$work/one/unpacked" "$work/another/deeper/unpacked" || true
    exit 1
fi
echo "the same, bit for bit:"
cat "$work/one/out/SHA256SUMS"
