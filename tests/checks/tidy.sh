#!/usr/bin/env bash
# clang-tidy finds nothing in the portable code.
#
# Most of its time goes into the headers of the standard library and of the lower floors, so it is given several files at
# once, one after the other in one text. Where that displeases it, because of a fault or of a name that two files have in
# common, each half of them is looked at, down to the single file, and only this counts.
set -euo pipefail
cd "$(dirname "$0")/../.."
Groups=2
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
    awk 'FNR == 1 { if (Open) print "}"; Open = 0; Page = FILENAME ~ /_page\.cpp$/ }
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

# Prints the files, a group to a line. None comes to another that defines the same name for itself alone, or that has it in
# use while a header declares that name outside of classes as well.
Groups() {
    find app console settings engine platform ui base -name '*.h' -exec cat {} + | awk -v Groups=$Groups '
        FILENAME == "-" {
            Words = split($0, Word, /[^A-Za-z_0-9]+/)
            if (/^[^ ]/) for (i = 1; i <= Words; i++) Known[Word[i]] = 1
            next
        }
        FNR == 1 { Files[++Count] = FILENAME; Own = 0; Page = FILENAME ~ /_page\.cpp$/ }
        /^namespace \{$/ { Own = !Page }
        /^}  \/\/ namespace$/ { Own = 0 }
        Own && /^[a-z]/ && match($0, /[A-Za-z_0-9]+(\(|\[| =|\{)/) {
            Name = substr($0, RSTART, RLENGTH)
            sub(/[^A-Za-z_0-9].*/, "", Name)
            OwnNames[Count, ++Owned[Count]] = Name
            IsOwn[Count, Name] = 1
        }
        { Words = split($0, Word, /[^A-Za-z_0-9]+/); for (i = 1; i <= Words; i++) Uses[Count, Word[i]] = 1; Lines[Count]++; All++ }
        function Clash(one, other,   i) {
            for (i = 1; i <= Owned[one]; i++) {
                Name = OwnNames[one, i]
                if ((other, Name) in IsOwn || Name in Known && (other, Name) in Uses) return 1
            }
            return 0
        }
        function Fits(file, group,   i) {
            for (i = 1; i < file; i++) if (In[i] == group && (Clash(file, i) || Clash(i, file))) return 0
            return 1
        }
        END {
            for (file = 1; file <= Count; file++) {
                best = 1
                while (best <= groups && (Size[best] > All / Groups || !Fits(file, best))) ++best
                if (best > groups) groups = best
                In[file] = best
                Size[best] += Lines[file]
                Line[best] = Line[best] " " Files[file]
            }
            for (group = 1; group <= groups; group++) print Line[group]
        }' - "$@"
}

# shellcheck disable=SC2046  # many files
Groups $(find app console settings engine platform ui base -name '*.cpp' -not -path '*/win32/*' | sort) |
    sed 's/^/TidyGroup/' | xargs -P "$(nproc)" -I '{}' bash -o pipefail -c '{}'
