# Shared by the scripts: where things are and how Wine runs.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX="${WINEPREFIX:-$root/build/wineprefix}"
export WINEDEBUG="${WINEDEBUG:--all}"
# No Mono or Gecko installers: the tests need neither.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
export WINEARCH=win64

jobs=$(nproc 2>/dev/null || echo 2)

configure_and_build() {  # preset [targets...]
    local preset=$1
    shift
    cmake --preset "$preset" -S "$root" >/dev/null
    cmake --build --preset "$preset" -j "$jobs" "$@"
}

ensure_wine_prefix() {
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        mkdir -p "$WINEPREFIX"
        xvfb-run -a wineboot --init >/dev/null 2>&1 || true
        wineserver -w || true
    fi
}
