#!/usr/bin/env bash
# Every member of the type library is called by some script client (VBScript or JScript).
# usage: coverage.sh IDL SCRIPT...
set -u
idl=$1
shift
missing=0
covered=0
# Member declarations in the IDL look like "        short vkrFindSubString(".
for member in $(grep -oE '^        [^[ ].* ([A-Za-z_][A-Za-z0-9_]*)\($' "$idl" |
                sed -E 's/.* ([A-Za-z_][A-Za-z0-9_]*)\($/\1/' | sort -u); do
    if grep -qiE "\.$member\b" "$@"; then
        covered=$((covered + 1))
    else
        missing=$((missing + 1))
        echo "FAIL no script client calls $member"
    fi
done
echo "$covered passed, $missing failed"
[ "$missing" -eq 0 ]
