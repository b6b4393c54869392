#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test layer:
# the portable core natively under AddressSanitizer/UBSan (with the fuzz corpora replayed), then
# the core, the Win32 code and the real program under Wine on a private X server.
set -uo pipefail
cd "$(dirname "$0")"
. tools/common.sh

ensure_tools || exit 1
log "building the native core and tests"
build_native || exit 1
log "building the Windows program and tests"
build_windows || exit 1

trap 'stop_wine; stop_xvfb' EXIT
failed=0

log "native tests (AddressSanitizer, UBSan)"
(cd "$BUILD/native" && ctest --output-on-failure) || failed=1

use_screen qvga-portrait || exit 1
reset_registry
log "Windows tests under Wine"
(cd "$BUILD/win" && ctest --output-on-failure) || failed=1

# Layer 4: screenshots of every page and dialog on the six device screens, in build/screens/.
run_screens() {
    local screen dir shot
    for screen in $SCREENS; do
        use_screen "$screen" || return 1
        dir="$BUILD/screens/$screen"
        rm -rf "$dir" && mkdir -p "$dir"
        export CV2_SCREEN="$screen" CV2_SCREENS_DIR="$(winpath "$dir")"
        export CV2_DEVICE_DIR="$(winpath "$BUILD/device")" CV2_SAMPLES_DIR="$(winpath "$ROOT/samples/device")"
        export CV2_PSEUDO_LANGUAGE="$(winpath "$BUILD/win/pseudo/language.dll")"
        for t in win32_tests e2e_tests; do
            "$WINE" "$BUILD/win/tests/$t.exe" --gtest_filter='*Screens.*' --gtest_brief=1 || return 1
        done
        for shot in "$dir"/*.bmp; do
            [ -e "$shot" ] || continue
            "$CONVERT" "$shot" "${shot%.bmp}.png" && rm -f "$shot"
            # A capture of one flat colour means nothing was drawn.
            if [ "$("$CONVERT" "${shot%.bmp}.png" -format '%k' info:)" -le 1 ]; then
                log "blank screenshot: ${shot%.bmp}.png"
                return 1
            fi
        done
        log "$screen: $(ls "$dir" | wc -l) screenshots in $dir"
    done
}
log "screens on the six device screens"
run_screens || failed=1

# Layer 5: the real program on a desktop larger than every device screen, with screenshots of
# the window at two screen choices in build/screens/desktop/.
run_desktop() {
    local dir="$BUILD/screens/desktop" shot
    use_desktop || return 1
    reset_registry
    rm -rf "$dir" && mkdir -p "$dir"
    CV2_SCREENS_DIR="$(winpath "$dir")" CV2_DEVICE_DIR="$(winpath "$BUILD/device")" \
        CV2_SAMPLES_DIR="$(winpath "$ROOT/samples/device")" \
        "$WINE" "$BUILD/win/tests/e2e_tests.exe" --gtest_filter='Desktop*' --gtest_brief=1 || return 1
    for shot in "$dir"/*.bmp; do
        [ -e "$shot" ] || continue
        "$CONVERT" "$shot" "${shot%.bmp}.png" && rm -f "$shot"
    done
    log "desktop $DESKTOP_SCREEN: $(ls "$dir" | wc -l) screenshots in $dir"
}
log "the editor on a $DESKTOP_SCREEN desktop"
run_desktop || failed=1

if [ "$failed" -ne 0 ]; then
    log "some tests failed"
    exit 1
fi
log "all tests passed"
