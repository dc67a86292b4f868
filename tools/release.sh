#!/usr/bin/env bash
# release.sh [REVISION] [FOLDER]: builds what is delivered from a tag (or any revision; HEAD without), runs the tests on
# what it built, and leaves packages, the folder that runs anywhere, and their checksums in FOLDER (release/ without).
#
# The same revision gives the same files, bit for bit, wherever it is built: times are those of the revision.
# packaging/reproducible.sh shows it. TARNVIK_SKIP_TESTS=1 leaves the tests out.
set -euo pipefail
cd "$(dirname "$0")/.."
exec </dev/null

revision=$(git rev-parse --verify "${1:-HEAD}^{commit}")
out=$(realpath -m "${2:-release}")
SOURCE_DATE_EPOCH=$(git show -s --format=%ct "$revision")
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
umask 022

. tools/setup.sh
install_missing "${build_packages[@]}" "${test_packages[@]}" dpkg-dev

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work" # some of the tests are made as another user
mkdir -p "$out" "$work/source"
git archive "$revision" | tar -x -C "$work/source"
cd "$work/source"

if [ "${TARNVIK_SKIP_TESTS:-}" = 1 ]; then
    cmake --preset package -DTARNVIK_TESTS=OFF
    cmake --build --preset package
else
    cmake --preset package
    cmake --build --preset package
    ctest --preset package --parallel "$(nproc)" --output-on-failure
fi
version=$(sed -n 's/^project(tarnvik VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

find . -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
(cd build/package && cpack)
# CPack gives folders the time of packing: packed once more, with all times those of the revision.
for deb in build/package/*.deb; do
    dpkg-deb -R "$deb" "$work/unpacked"
    find "$work/unpacked" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
    dpkg-deb --root-owner-group -Zxz -b "$work/unpacked" "$out/$(basename "$deb")"
    rm -rf "$work/unpacked"
done

name=tarnvik-$version-$(dpkg --print-architecture)
cmake --install build/package --component portable --prefix "$work/$name" --strip
tar -C "$work" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" -cf - "$name" | gzip -9n >"$out/$name.tar.gz"

cd "$out"
sha256sum -- *.deb "$name.tar.gz" >SHA256SUMS
ls -l
