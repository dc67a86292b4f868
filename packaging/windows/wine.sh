#!/usr/bin/env bash
# wine.sh PROGRAM ARGUMENT...: runs a program for Windows, with Wine's folders below $TARNVIK_WINDOWS. Its exit status is the
# program's.
set -euo pipefail
repository=$(cd "$(dirname "$0")/../.." && pwd)
work=${TARNVIK_WINDOWS:-$repository/build/windows}
mkdir -p "$work"
export WINEPREFIX=$work/wine WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="
# Wine's server stays for half a minute: the next program starts ten times as fast. The programs of its own that come with it are
# started by one that nobody waits for: they would keep the streams of the first open as long.
if /usr/lib/wine/wineserver64 -p30 </dev/null >/dev/null 2>&1; then
    /usr/lib/wine/wine64 cmd /c exit </dev/null >/dev/null 2>&1 || true
fi
exec /usr/lib/wine/wine64 "$@"
