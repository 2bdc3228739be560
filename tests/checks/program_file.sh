#!/usr/bin/env bash
# The program file $1, for windows ("GUI") or the console ("CUI") as $2 says, is small, stripped, starts on the oldest
# Windows and can be loaded at any address.
set -euo pipefail
Program=$1
Subsystem=$2
MaximalSize=1500000

Headers=$(x86_64-w64-mingw32-objdump -p "$Program")
Sections=$(x86_64-w64-mingw32-objdump -h "$Program")
Faults=0

Demand() {  # <what it is about> <text> <pattern>
    grep -qE "$3" <<<"$2" || { echo "$Program: $1"; Faults=$((Faults + 1)); }
}

Size=$(stat -c %s "$Program")
[ "$Size" -le $MaximalSize ] || { echo "$Program: $Size bytes, more than $MaximalSize"; Faults=$((Faults + 1)); }

# The oldest 32-bit system reports 5.0, the oldest 64-bit one 5.2.
if grep -q '^Magic.*PE32+' <<<"$Headers"; then Minor=2; else Minor=0; fi
Demand "not for the oldest subsystem" "$Headers" '^MajorSubsystemVersion[[:space:]]+5$'
Demand "not for the oldest subsystem" "$Headers" "^MinorSubsystemVersion[[:space:]]+$Minor\$"
Demand "not for the oldest system" "$Headers" '^MajorOSystemVersion[[:space:]]+5$'
Demand "not for the oldest system" "$Headers" "^MinorOSystemVersion[[:space:]]+$Minor\$"
Demand "not for the $Subsystem" "$Headers" "^Subsystem.*\(Windows $Subsystem\)"
Demand "not relocatable at random (ASLR)" "$Headers" '^[[:space:]]+DYNAMIC_BASE$'
Demand "data may be executed (NX)" "$Headers" '^[[:space:]]+NX_COMPAT$'
Demand "no relocations" "$Sections" '[[:space:]]\.reloc[[:space:]]+0*[1-9a-f]'
Demand "not stripped" "$(x86_64-w64-mingw32-objdump -t "$Program")" 'no symbols'
exit $((Faults > 0))
