#!/usr/bin/env bash
# ./run.sh [screen] [program arguments...]
# Builds if needed, then starts the editor in build/device/ on a device screen (default
# qvga-portrait). With a display, the editor opens in a Wine virtual desktop of the screen's size;
# without one, it runs on a private virtual screen and a screenshot goes to build/screens/run.png.
# CV2_RUN_ONCE=1 stops the editor after that screenshot (for scripted checks).
set -uo pipefail
cd "$(dirname "$0")"
. tools/common.sh

screen=qvga-portrait
if [ $# -gt 0 ] && screen_spec "$1" >/dev/null; then
    screen=$1
    shift
fi
read -r size dpi <<<"$(screen_spec "$screen")"

ensure_tools || exit 1
mkdir -p "$BUILD"
if ! build_windows >"$BUILD/run-build.log" 2>&1; then
    tail -n 30 "$BUILD/run-build.log" >&2
    log "build failed; the whole output is in $BUILD/run-build.log"
    exit 1
fi
exe=$(winpath "$BUILD/device/CV2Settings.exe")
cd "$BUILD/device"

# The test bar stands in for the bar: it logs each reload request it is sent.
start_test_bar() {
    "$WINE" "$(winpath "$BUILD/device/testbar.exe")" "$(winpath "$BUILD/bar.log")" &
    sleep 2 # its windows are hidden, so there is nothing on screen to wait for
    log "test bar running; it logs what it receives to $BUILD/bar.log"
}

if [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; then
    ensure_prefix || exit 1
    set_dpi "$dpi"
    register_sample_plugin
    start_test_bar
    log "starting the editor on $screen ($size, $dpi dpi) in a Wine virtual desktop"
    exec "$WINE" explorer "/desktop=CV2Settings,$size" "$exe" "$@"
fi

use_screen "$screen" || exit 1
trap 'stop_wine; stop_xvfb' EXIT
register_sample_plugin
start_test_bar
log "starting the editor on $screen ($size, $dpi dpi) on private display $DISPLAY"
"$WINE" "$exe" "$@" &
pid=$!
for _ in $(seq 1 100); do
    kill -0 "$pid" 2>/dev/null || break
    xwininfo -root -tree 2>/dev/null | grep -q '"Corvane 2 Settings"' && break
    sleep 0.2
done
if ! kill -0 "$pid" 2>/dev/null; then
    wait "$pid"
    code=$?
    log "the program ended with exit code $code"
    exit "$code"
fi
sleep 1
mkdir -p "$BUILD/screens"
"$IMPORT" -window root "$BUILD/screens/run.png"
log "screenshot written to $BUILD/screens/run.png"
if [ "${CV2_RUN_ONCE:-}" = 1 ]; then
    log "CV2_RUN_ONCE is set: stopping the editor"
    exit 0 # the exit trap ends Wine and the X server, and the editor with them
fi
log "the editor keeps running on $DISPLAY; press Ctrl-C to stop it"
wait "$pid"
