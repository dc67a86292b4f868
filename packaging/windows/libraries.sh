#!/usr/bin/env bash
# What the core and its tests are linked with, from Debian's sources, for Windows, in the folder libraries below
# $TARNVIK_WINDOWS (build/windows where nothing is said): headers of nlohmann-json and xxHash, simdjson, libcsv, GoogleTest. It
# takes a minute; what is there is not built again.
set -euo pipefail
repository=$(cd "$(dirname "$0")/../.." && pwd)
work=${TARNVIK_WINDOWS:-$repository/build/windows}
export TARNVIK_WINDOWS=$work
prefix=$work/libraries

if [ -e "$prefix/finished" ]; then
    exit 0
fi
rm -rf "$prefix" "$work"/{simdjson,libcsv,googletest}-{source,build}
mkdir -p "$work/sources" "$prefix"/{bin,include,lib,share/cmake}
(cd "$work/sources" && apt-get -q source --download-only simdjson libcsv)
for source in simdjson libcsv; do
    dpkg-source --no-check -x "$work"/sources/"$source"_*.dsc "$work/$source-source"
done

# The same files whenever they are built.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l "$work/libcsv-source/debian/changelog" -S Timestamp)
export SOURCE_DATE_EPOCH

# Headers alone, as they are; /usr/include itself must not be seen.
cp -r /usr/include/nlohmann "$prefix/include/"
cp -r /usr/share/cmake/nlohmann_json "$prefix/share/cmake/"
cp /usr/include/xxhash.h /usr/include/xxh3.h "$prefix/include/"

# A library of its own beside the programs: under its licence whoever has them may put another one in its place.
x86_64-w64-mingw32-gcc-posix -O2 -shared -s -I"$work/libcsv-source" "$work/libcsv-source/libcsv.c" \
    -o "$prefix/bin/libcsv.dll" -Wl,--out-implib,"$prefix/lib/libcsv.dll.a" -static-libgcc
cp "$work/libcsv-source/csv.h" "$prefix/include/"

# build NAME SOURCE OPTION...
build() {
    cmake -G Ninja -S "$2" -B "$work/$1-build" -DCMAKE_TOOLCHAIN_FILE="$repository/cmake/mingw-w64.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF "${@:3}"
    cmake --build "$work/$1-build" --target install
}
build googletest /usr/src/googletest -DBUILD_GMOCK=OFF
build simdjson "$work/simdjson-source" -DSIMDJSON_BUILD_STATIC=ON -DSIMDJSON_DEVELOPER_MODE=OFF
touch "$prefix/finished"
