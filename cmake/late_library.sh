#!/usr/bin/env bash
# Makes the import library $3 that binds the listed functions of the DLL $2 when they are first called; $1 is the
# compiler's triple.
set -euo pipefail
Tool=$1
Dll=$2
Library=$3
Machine=${Tool%%-*}

# The compiler's own import library knows how the functions are decorated.
Original=$("$Tool-gcc" -print-file-name="lib${Dll%.dll}.a")
Prefix=__imp_
[ "$Machine" = x86_64 ] || Prefix=__imp__

Definition=$Library.def
{
    printf 'LIBRARY "%s"\nEXPORTS\n' "$Dll"
    awk -v dll="$Dll" -v prefix="$Prefix" '
        FNR == NR { if ($1 == dll) Listed[$2] = 1; next }
        index($3, prefix) == 1 {
            Symbol = substr($3, length(prefix) + 1)
            split(Symbol, Part, "@")
            if (Part[1] in Listed) print Symbol
        }' <("$(dirname "$0")/listed_imports.sh" "$Machine" late) <("$Tool-nm" "$Original" 2>/dev/null)
} >"$Definition"
"$Tool-dlltool" --kill-at --input-def "$Definition" --output-delaylib "$Library"

# A call goes through an address table, whose entry leads to a stub until the function is bound. The linker takes a stub
# for one that is not needed when nothing refers to its symbol, and so the symbol is hidden from it; but winver.h declares
# functions that are called by the symbol.
if [ "$Dll" != version.dll ]; then
    sed "1,2d; s/^/${Prefix#__imp_}/" "$Definition" >"$Library.stubs"
    "$Tool-objcopy" --localize-symbols "$Library.stubs" "$Library"
fi
