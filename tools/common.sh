# Shared by ./run.sh and ./test.sh: packages, builds, the private X server and Wine prefix,
# and the device screens. Source it from the project's top folder.

ROOT=$(pwd)
BUILD="$ROOT/build"
export CV2_WINEPREFIX="$BUILD/wineprefix"
WINE="$ROOT/tools/wine-run.sh"
# ImageMagick itself (a stand-in of the same name may come first on PATH).
CONVERT=/usr/bin/convert
WINESERVER=/usr/lib/wine/wineserver64
[ -x "$WINESERVER" ] || WINESERVER=wineserver

# Debian packages the build and the tests need.
PACKAGES="cmake make g++ googletest g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine64 \
xvfb x11-utils fonts-wine imagemagick icoutils clang libclang-rt-14-dev"

log() { printf '==> %s\n' "$*" >&2; }

ensure_packages() {
    local missing=()
    for p in $PACKAGES; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    log "installing ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_jobs() { nproc 2>/dev/null || echo 2; }

build_windows() {
    cmake -S "$ROOT" -B "$BUILD/win" -DCMAKE_TOOLCHAIN_FILE="$ROOT/cmake/mingw-w64-x86_64.cmake" \
        -DCV2_DEVICE_DIR="$BUILD/device" >/dev/null
    cmake --build "$BUILD/win" -j "$(build_jobs)"
}

build_native() {
    cmake -S "$ROOT" -B "$BUILD/native" -DCV2_SANITIZE=ON >/dev/null
    cmake --build "$BUILD/native" -j "$(build_jobs)"
}

# The six device screens: name, pixels, dots per inch.
screen_spec() {
    case "$1" in
        qvga-portrait) echo "240x320 96" ;;
        qvga-landscape) echo "320x240 96" ;;
        qvga-square) echo "240x240 96" ;;
        vga-portrait) echo "480x640 192" ;;
        vga-landscape) echo "640x480 192" ;;
        vga-square) echo "480x480 192" ;;
        *) return 1 ;;
    esac
}
SCREENS="qvga-portrait qvga-landscape qvga-square vga-portrait vga-landscape vga-square"

XVFB_PID=""
# Starts a private X server with one screen of the given size and points DISPLAY at it.
start_xvfb() {
    stop_xvfb
    local fifo
    fifo=$(mktemp -u)
    mkfifo "$fifo"
    Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp -noreset 3>"$fifo" >/dev/null 2>&1 &
    XVFB_PID=$!
    local display
    read -r display <"$fifo"
    rm -f "$fifo"
    export DISPLAY=":$display"
}

stop_xvfb() {
    if [ -n "$XVFB_PID" ]; then
        kill "$XVFB_PID" 2>/dev/null || true
        wait "$XVFB_PID" 2>/dev/null || true
        XVFB_PID=""
    fi
}

stop_wine() { WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -k >/dev/null 2>&1 || true; }

# Creates the private Wine prefix once (about 15 s) and reuses it afterwards.
ensure_prefix() {
    [ -f "$CV2_WINEPREFIX/system.reg" ] && return 0
    log "creating the Wine prefix in $CV2_WINEPREFIX"
    mkdir -p "$CV2_WINEPREFIX"
    "$WINE" wineboot --init >/dev/null 2>&1 || true
    # No window manager runs on the private X server: Wine must not wait for one (it would
    # spend two seconds on every window it hides or destroys).
    "$WINE" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >/dev/null 2>&1
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -w
    # This Wine build does not find its own fonts (Tahoma, and Marlett for the caption buttons)
    # where the package puts them; the prefix gets copies.
    cp /usr/share/wine/fonts/*.ttf "$CV2_WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null || true
}

# Sets the screen density Wine reports (takes effect for programs started afterwards).
set_dpi() {
    "$WINE" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -w
}

# Prepares a device screen: X server of that size, a fresh wineserver, that density.
use_screen() {
    local geometry
    geometry=$(screen_spec "$1") || { echo "unknown screen '$1' (one of: $SCREENS)" >&2; return 1; }
    set -- $geometry
    stop_wine
    start_xvfb "$1"
    ensure_prefix
    set_dpi "$2"
}

# The Windows form of a path of this machine, as Wine sees it.
winpath() { printf 'Z:%s' "$(printf '%s' "$1" | tr '/' '\\')"; }
