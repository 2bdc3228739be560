#!/usr/bin/env bash
# The program file $1 imports only what the oldest Windows exports, as listed in windows2000_imports.txt.
set -euo pipefail
Program=$1
List="$(dirname "$0")/windows2000_imports.txt"

Headers=$(x86_64-w64-mingw32-objdump -p "$Program")
if grep -q '^Magic.*PE32+' <<<"$Headers"; then Machine=x86_64; else Machine=i686; fi

# An import's line: address, hint, name; a DLL's table begins with its name and ends with an empty line.
Imports=$(awk '
    /^[ \t]*DLL Name:/ { Dll = tolower($3); next }
    /^PE File Base Relocations|^The Export Tables/ { exit }
    Dll && NF == 3 && $1 ~ /^[0-9a-f]+$/ && $2 ~ /^[0-9a-f]+$/ { print Dll, $3 }' <<<"$Headers" | sort -u)
[ -n "$Imports" ] || { echo "$Program: no imports found"; exit 1; }

awk -v machine="$Machine" -v program="$Program" '
    FNR == NR {
        sub(/#.*/, "")
        if ($0 ~ /^\[/) { gsub(/[][]/, ""); Dll = $1; Applies = NF == 1 || $2 == machine; next }
        if (Applies) for (i = 1; i <= NF; i++) Allowed[Dll " " $i] = 1
        next
    }
    !($0 in Allowed) { print program ": imports what Windows 2000 may lack: " $0; Faults++ }
    END { exit Faults > 0 }' "$List" <(echo "$Imports")
