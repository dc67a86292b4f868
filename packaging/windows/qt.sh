#!/usr/bin/env bash
# Debian's Qt 6 (qt6-base, the version that the Linux build has too) for Windows, as DLLs, in the folder qt below
# $TARNVIK_WINDOWS (build/windows where nothing is said). It takes 40 minutes of one processor and 1.5 GB; what is there is not
# built again. What the program has no use for is left out.
set -euo pipefail
repository=$(cd "$(dirname "$0")/../.." && pwd)
work=${TARNVIK_WINDOWS:-$repository/build/windows}
export TARNVIK_WINDOWS=$work

if [ -e "$work/qt/finished" ]; then
    exit 0
fi
mkdir -p "$work/sources"
(cd "$work/sources" && apt-get -q source --download-only qt6-base)
rm -rf "$work/qt-source" "$work/qt-build" "$work/qt"
dpkg-source --no-check -x "$work"/sources/qt6-base_*.dsc "$work/qt-source"

# The same files whenever and wherever they are built: the time of Debian's source, no path of this machine.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l "$work/qt-source/debian/changelog" -S Timestamp)
export SOURCE_DATE_EPOCH
paths="-ffile-prefix-map=$work=."

cmake -G Ninja -S "$work/qt-source" -B "$work/qt-build" \
    -DCMAKE_TOOLCHAIN_FILE="$repository/cmake/mingw-w64.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX="$work/qt" \
    -DCMAKE_C_FLAGS="$paths" -DCMAKE_CXX_FLAGS="$paths" \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_QMAKE_DEVICE_OPTIONS=CROSS_COMPILE=x86_64-w64-mingw32- \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF \
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF \
    -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF -DFEATURE_openssl=OFF \
    -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF -DFEATURE_direct2d=OFF -DFEATURE_directwrite=OFF \
    -DFEATURE_tabletevent=OFF \
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_pcre2=OFF \
    -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_doubleconversion=OFF \
    -DFEATURE_system_libb2=OFF -DFEATURE_system_textmarkdownreader=OFF
nice cmake --build "$work/qt-build" --parallel "${TARNVIK_JOBS:-$(nproc)}"
cmake --install "$work/qt-build" --strip
touch "$work/qt/finished"
