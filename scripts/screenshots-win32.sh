#!/usr/bin/env bash
# Screenshots of every library dialog drawn by the Win32 host under Wine, in German and in
# English, as PNG files in build/screenshots (the 64-bit Windows build is made first).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset windows-x64 >/dev/null
cmake --build --preset windows-x64 --target velkor6_com velkor6_dialog_keys
out=build/screenshots
rm -f "$out"/*.png
tests/wine/run_display.sh build/windows-x64 build/windows-x64/src/com/velkor6.dll \
    build/windows-x64/tests/wine/velkor6_dialog_keys.exe --shots "$out" tests/wine/screens/forms.vbs
ls "$out"
