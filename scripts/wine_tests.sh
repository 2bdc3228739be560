#!/usr/bin/env bash
# Runs test programs under Wine, one after the other, each in a fresh copy of one prefix.
#   scripts/wine_tests.sh <work folder> <program folder> <test.exe>...
# The tests find the program folder in QUILLTUNE_DIR, as a Windows path. Each leaves <work folder>/<test>.log and, when it
# has ended by itself, its exit status in <work folder>/<test>.status.
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

Work=$1
Program=$2
shift 2
export HOME=$Work

StartXvfb
trap 'EndPrefix; kill "$XvfbId"' EXIT
MakePrefix "$Work/prefix"
# There is no window manager here, and Wine would wait for one whenever a window closes.
timeout 60 wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
timeout 60 wineserver -w

for Test in "$@"; do
    Name=$(basename "$Test" .exe)
    # The program may be tested beside files that it writes; every test program gets a folder as delivered.
    rm -rf "$Work/program" "$Work/run"
    cp -r "$Program" "$Work/program"
    cp -r "$Work/prefix" "$Work/run"
    export WINEPREFIX="$Work/run"
    QUILLTUNE_DIR=$(WindowsPath "$Work/program")
    export QUILLTUNE_DIR
    Status=0
    (cd "$Work" && timeout 420 wine "$Test" >"$Work/$Name.log" 2>&1 </dev/null) || Status=$?
    [ "$Status" = 124 ] || echo "$Status" >"$Work/$Name.status"
    EndPrefix
done
