# A display of its own under a plain window manager, and what a user does on it, for scripts that drive a window from outside.
# Sourced, with $DISPLAY set, $HOME a folder of the script's own and bash's "set -e":
#
#   started=(); trap 'end_started' EXIT
#   start_display 1280x900
#
# Needs the Debian packages xvfb, jwm, xdotool and x11-utils.
# shellcheck shell=bash disable=SC2034

# Only what a script has started is ended, by its number.
end_started() {
    local number
    for number in "${started[@]}"; do
        kill "$number" 2>/dev/null || true
    done
}

start_display() { # WIDTHxHEIGHT
    Xvfb "$DISPLAY" -screen 0 "$1x24" -nolisten tcp >/dev/null 2>&1 &
    started+=($!)
    for _ in $(seq 100); do
        xdpyinfo >/dev/null 2>&1 && break
        sleep 0.1
    done
    cat >"$HOME/.jwmrc" <<'JWM'
<?xml version="1.0"?>
<JWM><Key mask="A" key="F4">close</Key><FocusModel>click</FocusModel></JWM>
JWM
    jwm >/dev/null 2>&1 &
    started+=($!)
}

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}
await() { # the window of that title, visible
    timeout 60 xdotool search --sync --onlyvisible --name "$1" | tail -1 || fail "no window $1"
}
gone() {
    for _ in $(seq 100); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    fail "the window $1 is still there"
}
click() { # window x y, at 96 dots per inch; $dpi where it is another
    xdotool mousemove --window "$1" $(($2 * ${dpi:-96} / 96)) $(($3 * ${dpi:-96} / 96)) click 1
    sleep 0.3
}
key() {
    xdotool key "$@"
    sleep 0.3
}
