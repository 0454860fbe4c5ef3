# Sourced by the Wine test scripts: a Wine prefix of the build's own (never the user's ~/.wine),
# created on first use.
# usage: . wine_env.sh BUILD_DIR [BINARY]
# With BINARY, winsys runs Windows' own programs (regsvr32, reg, cscript) in BINARY's bitness:
# a 32-bit in-process DLL loads only into a 32-bit process, and a 32-bit process sees the 32-bit
# view of the registry, where such a DLL's classes are.
export WINEPREFIX="$(readlink -f "$1")/wineprefix"
export WINEDEBUG=-all
# No Mono or Gecko installer prompts while the prefix is made.
export WINEDLLOVERRIDES="mscoree=;mshtml="
if ! command -v wine >/dev/null; then
    echo "wine is not installed" >&2
    exit 1
fi

# Debian's wine command runs the 32-bit loader whenever 32-bit Wine is installed, and that loader
# starts nothing in a prefix made before, without the 32-bit system DLLs: such a prefix is made
# anew.
wow64dll="$WINEPREFIX/drive_c/windows/syswow64/kernel32.dll"
if [ -x /usr/lib/wine/wine ] && [ -f "$WINEPREFIX/system.reg" ] && [ ! -f "$wow64dll" ]; then
    wineserver -k 2>/dev/null
    rm -rf "$WINEPREFIX"
fi
if [ ! -f "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1
    # Windows get no X display here: the null driver makes them windows without pixels.
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
    wineserver -w
fi

# The Windows name of a file: Wine's drive Z: is the root of the file system.
winpath() {
    printf 'Z:%s' "$(readlink -f "$1" | tr / '\\')"
}

# The machine a PE file is built for, from its COFF header: 8664 (x64) or 014c (x86).
pe_machine() {
    local header
    header=$(od -An -tu4 -j60 -N4 "$1" | tr -d ' ')
    od -An -tx2 -j$((header + 4)) -N2 "$1" | tr -d ' '
}

# The 64-bit loader, given a program's full path, starts it in that program's bitness: system32
# holds the 64-bit programs and syswow64 the 32-bit ones. (Through the 32-bit loader, system32
# would mean syswow64.)
wine64=wine
[ -x /usr/lib/wine/wine64 ] && wine64=/usr/lib/wine/wine64
command -v wine64 >/dev/null && wine64=wine64
winsysdir=system32
if [ $# -ge 2 ]; then
    case $(pe_machine "$2") in
    8664) ;;
    014c)
        winsysdir=syswow64
        if [ ! -f "$wow64dll" ]; then
            echo "32-bit Wine is not installed (package wine32:i386): $2 cannot run" >&2
            exit 1
        fi
        ;;
    *)
        echo "not a Windows x64 or x86 binary: $2" >&2
        exit 1
        ;;
    esac
fi
winsysprogram() { # program name
    printf 'C:\\windows\\%s\\%s.exe' "$winsysdir" "$1"
}
winsys() { # program name, arguments...
    local program=$1
    shift
    "$wine64" "$(winsysprogram "$program")" "$@"
}
