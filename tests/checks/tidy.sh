#!/usr/bin/env bash
# clang-tidy finds nothing in the portable code.
#
# Most checks spend their time in the headers of the standard library, so they are given several files at once, one after
# the other in one text; where that displeases them, each of its files is looked at alone, and only this counts. The checks
# that follow the paths of execution, or that compare what one file includes, see each file alone anyway, which also shows
# that it includes what it needs.
set -euo pipefail
cd "$(dirname "$0")/../.."
Groups=4
# A function's paths grow with every branch of what it calls. After this many steps of one function (its own limit is
# 225,000) the analyzer has seen nearly every branch once and only combines them further, at twice the time.
PathSteps=40000
SingleChecks='clang-analyzer-*,readability-duplicate-include'

# <checks added to those of .clang-tidy, or taken from them> <file>
Tidy() {
    clang-tidy --quiet --warnings-as-errors='*' --config-file=.clang-tidy --checks="$1" "$2" -- -std=c++20 -I. \
        -Xclang -analyzer-config -Xclang "max-nodes=$PathSteps" 2>&1 |
        { grep -vE '^[0-9]+ warnings? .*generated|^Suppressed |^Use -header-filter' || true; }
}

TidySingle() { Tidy "-*,$SingleChecks" "$1"; }

# A page's unit has names in common with those of all other pages. Beside them it defines functions only, so that a
# namespace around everything keeps it apart.
TidyGroup() {
    local text file status=0
    text=$(mktemp --suffix=.cpp)
    awk 'FNR == 1 { if (Open) print "}"; Open = 0; Page = FILENAME ~ /_(page|explanations)\.cpp$/ }
         Page && !Open && /^namespace/ { print "namespace unit" ++Units " {"; Open = 1 }
         { print }
         END { if (Open) print "}" }' "$@" >"$text"
    if ! Tidy "-${SingleChecks//,/,-}" "$text" >/dev/null; then
        for file in "$@"; do Tidy "" "$file" || status=1; done
    fi
    rm "$text"
    return $status
}

export -f Tidy TidySingle TidyGroup
export SingleChecks PathSteps

# Neighbours, too, have names in common, and come into different groups. The longest files first, so that no processor
# waits for one of them in the end.
Files=$(find app console settings engine platform ui base -name '*.cpp' -not -path '*/win32/*' | sort)
{
    awk -v groups=$Groups '{ Group[NR % groups] = Group[NR % groups] " " $0 } END { for (i in Group) print "TidyGroup" Group[i] }' <<<"$Files"
    # shellcheck disable=SC2086  # many files
    ls -S $Files | sed 's/^/TidySingle /'
} | xargs -P "$(nproc)" -I '{}' bash -o pipefail -c '{}'
