#!/usr/bin/env bash
# What is run for hours, again: random inputs through the headless pass, damaged projects through the window's own opening,
# random events on the window under the address and the undefined-behaviour sanitizer.
#
#   tools/endure.sh [INPUTS [PROJECTS [SECONDS]]]     10000000 100000 3600 unless said otherwise
#
# The sanitized window is built in TARNVIK_ENDURE_BUILD, a folder outside the tree. Exit status 0 when all held.
set -euo pipefail
cd "$(dirname "$0")/.."

inputs=${1:-10000000}
projects=${2:-100000}
seconds=${3:-3600}
sanitized=${TARNVIK_ENDURE_BUILD:-${TMPDIR:-/tmp}/tarnvik-endure}
walks=8

step() {
    printf '\n=== %s\n' "$1"
}

step "build"
cmake --preset release >/dev/null
cmake --build --preset release --target tarnvik-check window_walks
cmake -S . -B "$sanitized" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARNVIK_SANITIZE=address,undefined >/dev/null
cmake --build "$sanitized" --target window_walks

step "$inputs random inputs"
python3 tests/endurance/random_inputs.py build/release/bin/tarnvik-check "$inputs" 2>/dev/null

step "$projects damaged projects"
TARNVIK_DAMAGED_PROJECTS=$projects build/release/bin/window_walks --gtest_brief=1 --gtest_filter='DamagedProjects.*'

step "$seconds s of random events under sanitizers"
export LSAN_OPTIONS="suppressions=$PWD/tests/support/leaks.supp:print_suppressions=0"
export UBSAN_OPTIONS=print_stacktrace=1
TARNVIK_MONKEY_SECONDS=$(((seconds + walks - 1) / walks)) "$sanitized/bin/window_walks" --gtest_brief=1 --gtest_filter='Walks/*'

step "$((projects / 50)) damaged projects under sanitizers"
TARNVIK_DAMAGED_PROJECTS=$((projects / 50)) "$sanitized/bin/window_walks" --gtest_brief=1 --gtest_filter='DamagedProjects.*'
