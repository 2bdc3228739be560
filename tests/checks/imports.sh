#!/usr/bin/env bash
# What the loader binds in the program file $1 before it begins is listed in cmake/windows2000_imports.txt: functions of
# the oldest Windows, and of DLLs that are not looked for in the program's folder.
set -euo pipefail
Program=$1

Headers=$(x86_64-w64-mingw32-objdump -p "$Program")
if grep -q '^Magic.*PE32+' <<<"$Headers"; then Machine=x86_64; else Machine=i686; fi

# An import's line: address, hint, name; a DLL's table begins with its name and ends with an empty line.
Imports=$(awk '
    /^[ \t]*DLL Name:/ { Dll = tolower($3); next }
    /^PE File Base Relocations|^The Export Tables/ { exit }
    Dll && NF == 3 && $1 ~ /^[0-9a-f]+$/ && $2 ~ /^[0-9a-f]+$/ { print Dll, $3 }' <<<"$Headers" | sort -u)
[ -n "$Imports" ] || { echo "$Program: no imports found"; exit 1; }

awk -v program="$Program" '
    FNR == NR { Allowed[$0] = 1; next }
    !($0 in Allowed) { print program ": imports what it must bind late or Windows 2000 may lack: " $0; Faults++ }
    END { exit Faults > 0 }' <("$(dirname "$0")/../../cmake/listed_imports.sh" "$Machine" static) <(echo "$Imports")
