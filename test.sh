#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test layer:
# the portable core natively under AddressSanitizer/UBSan (with the fuzz corpora replayed), then
# the core, the Win32 code and the real program under Wine on a private X server.
set -uo pipefail
cd "$(dirname "$0")"
. tools/common.sh

ensure_packages || exit 1
log "building the native core and tests"
build_native || exit 1
log "building the Windows program and tests"
build_windows || exit 1

trap 'stop_wine; stop_xvfb' EXIT
failed=0

log "native tests (AddressSanitizer, UBSan)"
(cd "$BUILD/native" && ctest --output-on-failure) || failed=1

use_screen qvga-portrait || exit 1
log "Windows tests under Wine"
(cd "$BUILD/win" && ctest --output-on-failure) || failed=1

if [ "$failed" -ne 0 ]; then
    log "some tests failed"
    exit 1
fi
log "all tests passed"
