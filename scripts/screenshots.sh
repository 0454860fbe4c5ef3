#!/usr/bin/env bash
# Renders each of the library's forms in German and English on an Xvfb display of its own and
# writes one PNG per form and language, window frame included (jwm draws it):
#
#   scripts/screenshots.sh [FOLDER]      (default build/screenshots)
#
# Qt: the program of build/default with its Qt dialog host. Win32: the program of build/windows-x64
# under Wine, when that build and Wine are there (VELKOR6_WIN32_PROGRAM names another one).
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
out=$(realpath -m "${1:-build/screenshots}")
mkdir -p "$out"
. tests/ui/xvfb.sh
xvfb_start || exit 1
wm_start || echo "screenshots: no jwm; the windows have no frames"

# The language of the boxes is the library's own setting, kept beside the library; each locale
# gets a copy of the programs with a settings file of its own, and the build's stays as it is.
staged() { # locale [renderer]
    local renderer=${2:-qt}
    local dir=$xvfb_dir/$renderer-$1 language=2
    [ "$1" = de-DE ] && language=1
    if [ ! -d "$dir" ]; then
        mkdir -p "$dir"
        if [ "$renderer" = win32 ]; then
            cp "$win32_program" "$dir/"
        else
            cp build/default/tools/velkor6/velkor6 build/default/tools/velkor6/libvelkor6-qt.so "$dir/"
            cp build/default/tools/velkor6/velkor6_dialog_map "$dir/" 2>/dev/null
        fi
        printf '[Application]\r\nLanguage=%s\r\n' "$language" >"$dir/velkor6.ini"
    fi
    echo "$dir"
}

# The visible window titled exactly so, within 10 s.
titled_window() {
    local id i
    for i in $(seq 200); do
        id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.05
    done
    return 1
}

capture() { # file, window title
    local id
    if ! id=$(titled_window "$2"); then
        echo "screenshots: no window '$2' for $1" >&2
        return 1
    fi
    sleep 0.4 # the first paint
    # Under jwm the client window sits in the frame window it draws.
    local parent root
    parent=$(xwininfo -tree -id "$id" | awk '/Parent window id:/ { print $4 }')
    root=$(xwininfo -root | awk '/Window id:/ { print $4 }')
    [ -n "$parent" ] && [ "$parent" != "$root" ] && id=$parent
    xwd -silent -id "$id" | convert xwd:- "$1" && echo "$1"
}

# shot RENDERER LOCALE NAME TITLE SCRIPT: runs the VB-syntax script (calls, one a line) with the
# program, captures the window titled TITLE, then ends the program.
shot() {
    local renderer=$1 locale=$2 name=$3 title=$4 script=$5
    local program
    case $renderer in
    qt) program=("$(staged "$locale")/velkor6") ;;
    win32) program=(wine "$(staged "$locale" win32)/$(basename "$win32_program")") ;;
    esac
    # stdin stays open until the capture is done, so that windows that do not block (the status
    # window) stay up.
    local fifo=$xvfb_dir/fifo.$name
    mkfifo "$fifo"
    "${program[@]}" --locale "$locale" <"$fifo" >/dev/null 2>&1 &
    local pid=$!
    exec 4>"$fifo"
    printf '%s\n' "$script" >&4
    capture "$out/$renderer-$locale-$name.png" "$title"
    exec 4>&-
    kill -KILL "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
    rm -f "$fifo"
}

# The zoom editor needs a caller's text box, which the program cannot make; the benchmark's
# helper has one.
zoom_shot() { # locale
    local helper
    helper=$(staged "$1")/velkor6_dialog_map
    [ -x "$helper" ] || { echo "screenshots: no velkor6_dialog_map built, no zoom editor" >&2; return; }
    # The helper reads bytes as Windows-1252.
    local text=$'Notes of the customer:\nDelivery on Mondays only.\nGr\xfc\xdfe'
    local lang=en_US.UTF-8
    [ "$1" = de-DE ] && lang=de_DE.UTF-8
    LC_ALL=$lang "$helper" zoom "$text" >/dev/null 2>&1 &
    local pid=$!
    capture "$out/qt-$1-zoom.png" "Notes"
    kill -KILL "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
}

forms() { # renderer
    local r=$1 loc d
    for loc in en-US de-DE; do
        if [ "$loc" = de-DE ]; then
            d=("Änderungen speichern?" "Die Datei wurde geändert. Sollen die Änderungen gespeichert werden, bevor sie geschlossen wird?")
        else
            d=("Save changes?" "The file was changed. Do you want to save the changes before closing it?")
        fi
        local icon
        for icon in 0:none 16:critical 32:question 48:exclamation 64:information; do
            shot "$r" "$loc" "msgbox-${icon#*:}" "Box ${icon#*:}" \
                "vkrMsgBox(\"${d[0]}\", \"${d[1]}\", $((${icon%%:*} + 3)), \"Box ${icon#*:}\")"
        done
        shot "$r" "$loc" errormsg "velkor6.loadRes" \
            'vkrErrorMsg(-2147221504, "The resource 12 was not found.", "velkor6.loadRes")'
        shot "$r" "$loc" extmsgbox "Rich text" \
            "vkrExtMsgBox(\"{\\colortbl ;\\red192\\green0\\blue0;}{\\b ${d[0]}}\\par ${d[1]}\\par {\\cf1\\i Gr\\'fc\\'dfe}, {\\ul underlined} \\u8364? 12,50|6000|2400\", 36, \"Rich text\")"
        shot "$r" "$loc" answer "Answer" \
            "vkrGetAnswer(\"${d[0]}\", \"${d[1]}\", \"Answer\", Array(\"&Save\", \"Do&n't save\", \"Cancel\"))"
        shot "$r" "$loc" input "Input" 'vkrInputValue("08|Code of the article:", "Input", "", "A-1234")'
        shot "$r" "$loc" inputcode "Password" 'vkrInputCode("Password:", "Password", "", "secret")'
        [ "$r" = qt ] && zoom_shot "$loc"
        shot "$r" "$loc" status "Status" \
            "vkrSendMessage(\"Reading files... {\\b 50} of 100\", \"Status\", True, 50, 100)"
    done
}

forms qt

win32_program=${VELKOR6_WIN32_PROGRAM:-build/windows-x64/tools/velkor6/velkor6.exe}
if [ -f "$win32_program" ] && command -v wine >/dev/null; then
    export WINEDEBUG=-all
    forms win32
else
    echo "screenshots: no Win32 program at $win32_program (or no Wine); only Qt was rendered"
fi
