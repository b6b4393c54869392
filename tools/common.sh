# Shared by ./run.sh and ./test.sh: packages, builds, the private X server and Wine prefix,
# and the device screens. Source it from the project's top folder.

ROOT=$(pwd)
BUILD="$ROOT/build"
export CV2_WINEPREFIX="$BUILD/wineprefix"
WINE="$ROOT/tools/wine-run.sh"
# Paths of the installed tools; empty until resolve_tools has run (after ensure_packages).
WINESERVER="" CONVERT="" IMPORT="" XVFB=""

# Debian packages the build and the tests need.
# The 32-bit C compiler builds a plug-in the 64-bit editor must refuse to load. zlib packs and
# unpacks theme packages (the mingw form for the program, the native one for the core's tests);
# zip, unzip and Python's zipfile make and check packages in the tests.
PACKAGES="cmake make g++ googletest g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine64 \
gcc-mingw-w64-i686-posix xvfb x11-utils fonts-wine imagemagick icoutils clang libclang-rt-14-dev libinih-dev \
libz-mingw-w64-dev zlib1g-dev zip unzip python3"

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

# The first of the candidates that is an executable file, or a name found on PATH.
first_tool() {
    local c
    for c in "$@"; do
        case "$c" in
            /*) [ -x "$c" ] && { printf '%s' "$c"; return 0; } ;;
            *) command -v "$c" 2>/dev/null && return 0 ;;
        esac
    done
    return 1
}

# Finds every tool the scripts call. Runs after ensure_packages, never before: Debian's Wine keeps
# its loader and server under /usr/lib/wine/, outside PATH, and nothing is there before the install.
resolve_tools() {
    local missing=() t
    WINESERVER=$(first_tool /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver wineserver) ||
        missing+=("wineserver (package wine64)")
    first_tool /usr/lib/wine/wine64 wine64 wine >/dev/null || missing+=("wine64 (package wine64)")
    # ImageMagick itself: a stand-in of the same name may come first on PATH.
    CONVERT=$(first_tool /usr/bin/convert) || missing+=("convert (package imagemagick)")
    IMPORT=$(first_tool /usr/bin/import) || missing+=("import (package imagemagick)")
    XVFB=$(first_tool Xvfb) || missing+=("Xvfb (package xvfb)")
    for t in cmake ctest make g++ x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-windres \
        i686-w64-mingw32-gcc-posix xwininfo xdpyinfo; do
        command -v "$t" >/dev/null 2>&1 || missing+=("$t")
    done
    [ -f /usr/src/googletest/CMakeLists.txt ] || missing+=("/usr/src/googletest (package googletest)")
    [ -d /usr/share/wine/fonts ] || missing+=("/usr/share/wine/fonts (package fonts-wine)")
    [ -f /usr/x86_64-w64-mingw32/lib/libz.a ] || missing+=("mingw zlib (package libz-mingw-w64-dev)")
    [ -f /usr/include/zlib.h ] || missing+=("zlib.h (package zlib1g-dev)")
    # Debian's own Python: another one may come first on PATH.
    [ -x /usr/bin/python3 ] || missing+=("/usr/bin/python3 (package python3)")
    for t in zip unzip; do
        [ -x "/usr/bin/$t" ] || missing+=("/usr/bin/$t (package $t)")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        log "missing after installing the packages: ${missing[*]}"
        return 1
    fi
}

# Installs what is missing, then finds the tools: the one way the scripts get ready.
ensure_tools() { ensure_packages && resolve_tools; }

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
    "$XVFB" -displayfd 3 -screen 0 "${1}x24" -nolisten tcp -noreset 3>"$fifo" >/dev/null 2>&1 &
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

# Called from exit traps too, possibly before the tools were found: then there is no server.
stop_wine() {
    [ -n "$WINESERVER" ] || return 0
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -k >/dev/null 2>&1 || true
}

# Creates the private Wine prefix once (about 15 s) and reuses it afterwards. A stamp written
# after the last step marks a finished prefix, so one left half-made by an interrupted run is
# completed rather than trusted.
ensure_prefix() {
    local stamp="$CV2_WINEPREFIX/cv2-prefix-ready"
    [ -f "$stamp" ] && return 0
    log "preparing the Wine prefix in $CV2_WINEPREFIX"
    mkdir -p "$CV2_WINEPREFIX"
    "$WINE" wineboot --init >/dev/null 2>&1
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -w
    [ -f "$CV2_WINEPREFIX/system.reg" ] || { log "wineboot did not create $CV2_WINEPREFIX"; return 1; }
    # No window manager runs on the private X server: Wine must not wait for one (it would
    # spend two seconds on every window it hides or destroys).
    "$WINE" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >/dev/null 2>&1 ||
        { log "could not set the X11 driver's Managed value"; return 1; }
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -w
    # This Wine build does not find its own fonts (Tahoma, and Marlett for the caption buttons)
    # where the package puts them; the prefix gets copies.
    mkdir -p "$CV2_WINEPREFIX/drive_c/windows/Fonts"
    cp /usr/share/wine/fonts/*.ttf "$CV2_WINEPREFIX/drive_c/windows/Fonts/" ||
        { log "could not copy Wine's fonts into the prefix"; return 1; }
    touch "$stamp"
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
    [ -n "$WINESERVER" ] || resolve_tools || return 1
    stop_wine
    start_xvfb "$1"
    ensure_prefix || return 1
    set_dpi "$2"
}

# Prepares a desktop screen larger than every device screen (the editor then shows a device
# screen in a window): X server of that size at 96 dpi.
DESKTOP_SCREEN="1280x800"
use_desktop() {
    [ -n "$WINESERVER" ] || resolve_tools || return 1
    stop_wine
    start_xvfb "${1:-$DESKTOP_SCREEN}"
    ensure_prefix || return 1
    set_dpi 96
}

# Tests start from the registry of a new device: nothing of the bar's own key is left over from
# an earlier run, or from ./run.sh, which shares the prefix.
reset_registry() { "$WINE" reg delete 'HKCU\Software\Thornlea' /f >/dev/null 2>&1 || true; }

# Registers the device folder's sample plug-in in the private prefix, so the editor offers its
# buttons and actions. A registration already there is left as it is (the user may have turned
# the plug-in off on the Plugins page). Needs the prefix, so it runs after ensure_prefix.
register_sample_plugin() {
    local key='HKCU\Software\Thornlea\Corvane 2\Plugins'
    "$WINE" reg query "$key" /v "Sample Plugin" >/dev/null 2>&1 && return 0
    "$WINE" reg add "$key" /v "Sample Plugin" /t REG_SZ \
        /d "$(winpath "$BUILD/device/SamplePlugin.dll")" /f >/dev/null 2>&1 ||
        { log "could not register the sample plug-in"; return 1; }
    WINEPREFIX="$CV2_WINEPREFIX" "$WINESERVER" -w
}

# The Windows form of a path of this machine, as Wine sees it.
winpath() { printf 'Z:%s' "$(printf '%s' "$1" | tr '/' '\\')"; }
