#!/usr/bin/env bash
# wine.sh PROGRAM ARGUMENT...: runs a program for Windows, with Wine's folders below $TARNVIK_WINDOWS. Its exit status is the
# program's.
set -euo pipefail
repository=$(cd "$(dirname "$0")/../.." && pwd)
work=${TARNVIK_WINDOWS:-$repository/build/windows}
mkdir -p "$work"
export WINEPREFIX=$work/wine WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="
# Wine's server stays for half a minute: the next program starts ten times as fast.
/usr/lib/wine/wineserver64 -p30 </dev/null >/dev/null 2>&1 || true
exec /usr/lib/wine/wine64 "$@"
