#!/usr/bin/env bash
# Includes go down only, and Windows stays in the win32 folders:
# - a floor includes itself and the floors below it, by paths from the project's folder;
# - of platform, only what works on forms includes ui, and of ui only the controls;
# - outside a win32 folder there is no header of Windows or C but zlib's, and none from a win32 folder;
# - only base/win32/late_bound.cpp looks functions up at run time;
# - no file includes a header twice.
set -euo pipefail
cd "$(dirname "$0")/../.."

find console app settings engine platform ui base -name '*.h' -o -name '*.cpp' | sort | xargs awk '
    function Complain(what) { printf "%s:%d: %s\n", FILENAME, FNR, what; Faults++ }
    BEGIN { Count = split("console app settings engine platform ui base", Floors, " "); for (i = 1; i <= Count; i++) Rank[Floors[i]] = i }
    FNR == 1 { split(FILENAME, Path, "/"); Own = Rank[Path[1]]; Portable = FILENAME !~ /\/win32\// }
    /^[ \t]*#[ \t]*include[ \t]*"/ {
        split($0, Part, "\"")
        split(Part[2], Target, "/")
        if (!(Target[1] in Rank)) Complain("not a path from the project folder: " Part[2])
        else if (Rank[Target[1]] < Own) Complain("includes a higher floor: " Part[2])
        if (Path[1] == "platform" && Target[1] == "ui" &&
            (FILENAME !~ /^platform\/(dialogs|language|numeric_fields)\./ || Part[2] !~ /^ui\/(color|controls|form)\.h$/))
            Complain("works on more than the controls of forms: " Part[2])
        if (Portable && Part[2] ~ /\/win32\//) Complain("portable code includes " Part[2])
    }
    /^[ \t]*#[ \t]*include/ { if (Seen[FILENAME, $2]++) Complain("includes " $2 " twice") }
    /^[ \t]*#[ \t]*include[ \t]*<.*\.h>/ && !/<zlib\.h>/ && Portable { Complain("portable code includes a header of Windows or C") }
    /GetProcAddress|LoadLibrary/ && FILENAME != "base/win32/late_bound.cpp" && !/^[ \t]*\/\// {
        Complain("functions are looked up in base/win32/late_bound.cpp only")
    }
    END { exit Faults > 0 }'
