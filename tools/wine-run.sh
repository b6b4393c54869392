#!/bin/sh
# Runs a Windows program of the build under Wine with the project's private prefix.
# The display comes from DISPLAY (./test.sh and ./run.sh start their own X server).
# The loader is looked up on every call, so this works as soon as Wine is installed.
here=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX="${CV2_WINEPREFIX:-$here/build/wineprefix}"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
# A fixed locale keeps the ANSI code page at 1252 whatever the machine is set to.
export LC_ALL=C.UTF-8 LANG=C.UTF-8
# Debian keeps the 64-bit loader under /usr/lib/wine/, outside PATH.
for loader in /usr/lib/wine/wine64 "$(command -v wine64)" "$(command -v wine)"; do
    [ -n "$loader" ] && [ -x "$loader" ] && exec "$loader" "$@"
done
echo "wine-run.sh: no Wine loader found (install the wine64 package; ./test.sh does)" >&2
exit 127
