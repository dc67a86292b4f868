# Installs what a bare Debian 12 machine lacks to build, run and check Tarnvik. Sourced by test.sh, run.sh and .ci/run:
#
#   . tools/setup.sh
#   install_missing "${build_packages[@]}"
#
# Only missing packages are installed, and where nothing is missing no network is needed. Needs root, or sudo.
# shellcheck shell=bash disable=SC2034

# Compiler and build system, GoogleTest, JSON (general and fast), CSV, a checksum, Qt 6 with PrintSupport, and what the tests read
# a printed report and make regional settings with.
build_packages=(
    g++ cmake ninja-build libgtest-dev nlohmann-json3-dev libsimdjson-dev libcsv-dev libxxhash-dev
    qt6-base-dev poppler-utils python3 locales
)

# What the tests of saving set access lists and attributes with, and stop a save with, the validators of the tool's JSON and of
# HTML, and the shell besides bash that completes its options; without them those are skipped.
test_packages=(acl attr strace python3-jsonschema tidy zsh)

# What CI needs beyond that: formatter, linter, fuzzer, benchmarks. Debian 12 has version 14 of the clang tools.
ci_packages=(
    git clang clang-format-14 clang-tidy-14 libclang-rt-14-dev libbenchmark-dev
)

# What cross-builds the core for Windows and runs it, and what its sources are fetched with; and what the installer needs beyond that.
windows_packages=(
    g++-mingw-w64-x86-64-posix wine64 dpkg-dev googletest
)
windows_release_packages=(
    git nsis zip unzip qt6-base-dev-tools mingw-w64-common xvfb x11-utils jwm xdotool imagemagick
)

# What tools/make_manual.py sets the manual with; the PDF is committed, so that nothing else needs them.
manual_packages=(
    pandoc texlive-luatex texlive-latex-recommended texlive-latex-extra fonts-texgyre fonts-texgyre-math fonts-dejavu-core
    librsvg2-bin
)

missing_packages() {
    local package
    for package in "$@"; do
        if ! dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
            printf '%s\n' "$package"
        fi
    done
}

install_missing() {
    if ! command -v dpkg-query >/dev/null; then
        echo "setup: no Debian machine; the build needs the like of: $*" >&2
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [ "${#missing[@]}" -eq 0 ]; then
        return 0
    fi
    local -a root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "setup: missing, and neither root nor sudo to install them: ${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
        if [ ! -t 0 ]; then
            root+=(-n) # nobody there to type a password
        fi
    fi
    echo "setup: installing ${missing[*]}"
    local -a apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Acquire::Retries=3)
    "${apt[@]}" update </dev/null &&
        "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null
}

# Lets apt-get fetch sources of Debian's packages, from where it has the packages themselves, where it does not do so yet.
# Needs root, or sudo.
install_sources() {
    if apt-get -q source --print-uris libcsv >/dev/null 2>&1; then
        return 0
    fi
    local folder=/etc/apt/sources.list.d
    local -a root=()
    if [ "$(id -u)" -ne 0 ]; then
        root=(sudo -n)
    fi
    find /etc/apt -maxdepth 2 -name '*.list' ! -name 'tarnvik-*' -exec sed -n 's/^deb /deb-src /p' {} + |
        "${root[@]}" tee "$folder/tarnvik-sources.list" >/dev/null &&
        find "$folder" -name '*.sources' ! -name 'tarnvik-*' -exec sed -s -e 's/^Types:.*/Types: deb-src/' -e '$G' {} + |
        "${root[@]}" tee "$folder/tarnvik-sources.sources" >/dev/null &&
        "${root[@]}" apt-get -q -o Acquire::Retries=3 update </dev/null
}
