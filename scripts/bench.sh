#!/usr/bin/env bash
# Measures how long Firefox's preference files take to load, natively, and then the start of the 64-bit program and the
# resizing of its window under Wine, pair by pair beside Wine's own notepad, so that the ratio holds whatever the machine
# is doing.
#   scripts/bench.sh [pairs]
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

RequirePackages "${BuildPackages[@]}" libgtest-dev libgmock-dev
BuildPreset bench --target prefs_bench
Say "Preference files, natively"
"$Root/build/bench/tools/prefs_bench"

"$Root/scripts/build.sh"
RequirePackages "${WinePackages[@]}"
BuildPreset win64 --target prefs_bench startup_bench resize_bench

Work=$(mktemp -d "${TMPDIR:-/tmp}/quilltune-bench.XXXXXX")
StartXvfb
trap 'EndPrefix; kill "$XvfbId"; rm -rf "$Work"' EXIT
MakePrefix "$Work/prefix"
Program="$(WindowsPath "$Root/dist/win64")\\Quilltune.exe"
Say "Preference files, under Wine"
wine "$Root/build/win64/tools/prefs_bench.exe" "$(WindowsPath "$Work")"
wine "$Root/build/win64/tools/startup_bench.exe" "$Program" "${1:-15}"
wine "$Root/build/win64/tools/resize_bench.exe" "$Program" 96
