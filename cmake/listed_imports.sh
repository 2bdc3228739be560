#!/usr/bin/env bash
# Prints what windows2000_imports.txt lists for the machine $1, a DLL and a function on each line: of the DLLs that are
# marked as late ($2 is "late"), or of the others ($2 is "static").
set -euo pipefail
awk -v machine="$1" -v kind="$2" '
    { sub(/#.*/, "") }
    /^\[/ {
        gsub(/[][]/, "")
        Kind = "static"
        Applies = 1
        for (i = 2; i <= NF; i++) if ($i == "late") Kind = "late"; else Applies = $i == machine
        Dll = $1
        next
    }
    Applies && Kind == kind { for (i = 1; i <= NF; i++) print Dll, $i }' "$(dirname "$0")/windows2000_imports.txt"
