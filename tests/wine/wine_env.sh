# Sourced by the Wine test scripts: a Wine prefix of the build's own (never the user's ~/.wine),
# created on first use.
# usage: . wine_env.sh BUILD_DIR
export WINEPREFIX="$(readlink -f "$1")/wineprefix"
export WINEDEBUG=-all
# No Mono or Gecko installer prompts while the prefix is made.
export WINEDLLOVERRIDES="mscoree=;mshtml="
if ! command -v wine >/dev/null; then
    echo "wine is not installed" >&2
    exit 1
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
