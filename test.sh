#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Further arguments go to ctest:
#
#   ./test.sh
#   ./test.sh -R Splitting
set -euo pipefail
cd "$(dirname "$0")"

. tools/setup.sh
install_missing "${build_packages[@]}" "${test_packages[@]}"

cmake --preset release
cmake --build --preset release
exec ctest --preset release --parallel "$(nproc)" "$@"
