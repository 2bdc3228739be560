#!/usr/bin/env bash
# clang-tidy finds nothing in the portable code.
#
# Most of its time goes into the headers of the standard library and of the lower floors, so it is given several files at
# once, one after the other in one text. Where that displeases it, because of a fault or of a name that two files have in
# common, each half of them is looked at, down to the single file, and only this counts.
set -euo pipefail
cd "$(dirname "$0")/../.."
Groups=4
# A function's paths grow with every branch of what it calls. After this many steps of one function (its own limit is
# 225,000) the analyzer has seen nearly every branch once and only combines them further, at twice the time.
export PathSteps=40000

Tidy() {
    clang-tidy --quiet --warnings-as-errors='*' --config-file=.clang-tidy "$1" -- -std=c++20 -I. \
        -Xclang -analyzer-config -Xclang "max-nodes=$PathSteps" 2>&1 |
        { grep -vE '^[0-9]+ warnings? .*generated|^Suppressed |^Use -header-filter' || true; }
}

# A page's unit has names in common with those of all other pages. Beside them it defines functions only, so that a
# namespace around everything keeps it apart.
TidyGroup() {
    local text status=0 half=$(($# / 2))
    if [ $# = 1 ]; then
        Tidy "$1"
        return
    fi
    text=$(mktemp --suffix=.cpp)
    awk 'FNR == 1 { if (Open) print "}"; Open = 0; Page = FILENAME ~ /_(page|explanations)\.cpp$/ }
         Page && !Open && /^namespace/ { print "namespace unit" ++Units " {"; Open = 1 }
         { print }
         END { if (Open) print "}" }' "$@" >"$text"
    if ! Tidy "$text" >/dev/null; then
        TidyGroup "${@:1:half}" || status=1
        TidyGroup "${@:half+1}" || status=1
    fi
    rm "$text"
    return $status
}

export -f Tidy TidyGroup

# Neighbours, too, have names in common, and come into different groups.
find app console settings engine platform ui base -name '*.cpp' -not -path '*/win32/*' | sort |
    awk -v groups=$Groups '{ Group[NR % groups] = Group[NR % groups] " " $0 }
                           END { for (i in Group) print "TidyGroup" Group[i] }' |
    xargs -P "$(nproc)" -I '{}' bash -o pipefail -c '{}'
