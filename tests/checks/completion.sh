#!/usr/bin/env bash
# What bash offers for qtune's command lines, with a stand-in for qtune.
set -euo pipefail
cd "$(dirname "$0")/../.."

qtune() {
    case $1 in
        list) printf 'Box_One\ton\tOne\r\nBox_Two\toff\tTwo\r\nList\t0\tThree\r\n' | tr -d '\r' ;;
        show) printf 'id\t%s\nstates\t0 (No thing)\nstates\t1 (Some)\n' "$2" ;;
    esac
}
compopt() { :; }  # works within a completion only
. completions/qtune.bash

Expect() {  # <what is offered> <words of the line>...
    local wanted=$1
    shift
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
    _qtune
    [ "${COMPREPLY[*]}" = "$wanted" ] || { echo "${*@Q}: offered ${COMPREPLY[*]@Q} instead of ${wanted@Q}"; exit 1; }
}

Expect 'show set' qtune s
Expect '--json' qtune get --j
Expect 'Box_One Box_Two' qtune get --json Box
Expect 'Box_One= Box_Two=' qtune set Box
Expect '0 1' qtune set List =
Expect '1' qtune set List = 1
Expect '' qtune export ''
Expect 'List' qtune export file.reg L
