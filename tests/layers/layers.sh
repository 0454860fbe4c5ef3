#!/usr/bin/env bash
# Fails when a file includes a header of a higher layer, or an operating-system or toolkit header
# outside the folders that speak to the system: src/platform/<os>, src/com and src/ui/<toolkit>.
set -euo pipefail
cd "$1"

rank() {
    case $1 in
    core) echo 0 ;;
    platform | ui) echo 1 ;;
    text | values | files | lzw | applib | controls | resources | dialogs | windows) echo 2 ;;
    lib) echo 3 ;;
    com | tools) echo 4 ;;
    *) echo -1 ;;
    esac
}

failures=0
while IFS= read -r file; do
    dir=${file#src/}
    dir=${dir%%/*}
    [ "${file%%/*}" = tools ] && dir=tools
    own=$(rank "$dir")
    while IFS= read -r included; do
        other=$(rank "$included")
        if [ "$other" -gt "$own" ]; then
            echo "$file includes $included/, a higher layer"
            failures=$((failures + 1))
        fi
    done < <(sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]+"([a-z_]+)\/.*/\1/p' "$file")
done < <(git ls-files 'src/*.cpp' 'src/*.h' 'tools/*.cpp' 'tools/*.h')

# The public headers are the API: they include nothing private.
while IFS= read -r line; do
    echo "public header includes a private one: $line"
    failures=$((failures + 1))
done < <(git grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]+"' -- 'include/*.h' |
         grep -vE '#[[:space:]]*include[[:space:]]+"velkor6/')

system='#[[:space:]]*include[[:space:]]*<(windows|winbase|winuser|windef|shlwapi|shlobj|shellapi|oaidl|ole2|oleauto|objbase|commctrl|commdlg|richedit|X11/[^>]*|xcb/[^>]*|Q[A-Za-z]*|Qt[A-Za-z]*/[^>]*)(\.h)?>'
while IFS= read -r line; do
    echo "operating-system or toolkit header outside its folders: $line"
    failures=$((failures + 1))
done < <(git grep -nE "$system" -- 'src/*' 'include/*' 'tools/*' ':!src/platform/win32/*' \
             ':!src/platform/posix/*' ':!src/com/*' ':!src/ui/*')

if [ "$failures" -gt 0 ]; then
    echo "$failures layering faults"
    exit 1
fi
echo "layers: every include goes down"
