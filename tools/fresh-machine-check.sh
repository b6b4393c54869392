#!/usr/bin/env bash
# Proves the README's two commands on a machine without the project's packages, by hand:
# removes the project's Debian packages and build/, then runs ./test.sh and ./run.sh (without a
# display, stopped after its screenshot) and reports each command's result and time.
# Packages that apt removes along with the project's own (those that depend on them) are put
# back at the end, so the machine is left as it was plus the project's packages.
#   tools/fresh-machine-check.sh [--yes]
set -uo pipefail
cd "$(dirname "$0")/.."
. tools/common.sh

if [ "${1:-}" != "--yes" ]; then
    echo "This removes these Debian packages (and what depends on them) and the folder $BUILD:"
    echo "  $PACKAGES"
    read -r -p "Go on? [y/N] " answer
    [ "$answer" = y ] || [ "$answer" = Y ] || exit 1
fi

installed_now() { dpkg-query -W -f='${Status} ${Package}\n' 2>/dev/null | awk '$3 == "installed" {print $4}' | sort; }

before=$(mktemp) after=$(mktemp) report=$(mktemp)
trap 'rm -f "$before" "$after"' EXIT
installed_now >"$before"
log "removing the project's packages"
# shellcheck disable=SC2086
DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq $PACKAGES >/dev/null 2>&1
DEBIAN_FRONTEND=noninteractive apt-get autoremove --purge -y -qq >/dev/null 2>&1
installed_now >"$after"
still=""
for p in $PACKAGES; do grep -qx "$p" "$after" && still+=" $p"; done
[ -z "$still" ] || { log "still installed:$still"; exit 1; }
collateral=$(comm -23 "$before" "$after" | grep -vxF -f <(tr ' ' '\n' <<<"$PACKAGES") | tr '\n' ' ')
log "removed $(comm -23 "$before" "$after" | wc -l) packages"
rm -rf "$BUILD"

# Runs one command from a clean environment (no display), timing it.
timed() {
    local name=$1 start code
    shift
    start=$(date +%s)
    env -u DISPLAY "$@" >"${TMPDIR:-/tmp}/cv2-fresh-$name.log" 2>&1
    code=$?
    printf '%-10s exit %d after %d min %02d s (log: %s)\n' "$name" "$code" \
        $((($(date +%s) - start) / 60)) $((($(date +%s) - start) % 60)) "${TMPDIR:-/tmp}/cv2-fresh-$name.log" >>"$report"
    return "$code"
}
timed test.sh ./test.sh
test_code=$?
timed run.sh env CV2_RUN_ONCE=1 ./run.sh
run_code=$?
[ -s "$BUILD/screens/run.png" ] || { echo "run.sh       wrote no screenshot" >>"$report"; run_code=1; }

if [ -n "${collateral// /}" ]; then
    log "putting back what was removed with the project's packages: $collateral"
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $collateral >/dev/null 2>&1 ||
        log "could not put them all back"
fi
cat "$report"
rm -f "$report"
[ "$test_code" -eq 0 ] && [ "$run_code" -eq 0 ]
