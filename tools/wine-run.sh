#!/bin/sh
# Runs a Windows program of the build under Wine with the project's private prefix.
# The display comes from DISPLAY (./test.sh and ./run.sh start their own X server).
here=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX="${CV2_WINEPREFIX:-$here/build/wineprefix}"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
# A fixed locale keeps the ANSI code page at 1252 whatever the machine is set to.
export LC_ALL=C.UTF-8 LANG=C.UTF-8
if [ -x /usr/lib/wine/wine64 ]; then exec /usr/lib/wine/wine64 "$@"; fi
exec wine "$@"
