#!/usr/bin/env bash
# Measures how long Firefox's preference files take to load, natively, and then the start of the 64-bit program, the
# showing of its pages and the resizing of its window under Wine, in turns with Wine's own notepad and winecfg, so that the
# ratio holds whatever the machine is doing.
#   scripts/bench.sh [pairs]
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

RequirePackages "${BuildPackages[@]}" libgtest-dev libgmock-dev
BuildPreset bench --target prefs_bench
"$Root/build/bench/tests/prefs_bench"

"$Root/scripts/build.sh"
RequirePackages "${WinePackages[@]}"
BuildPreset win64 --target startup_bench page_bench resize_bench

Work=$(mktemp -d "${TMPDIR:-/tmp}/quilltune-bench.XXXXXX")
StartXvfb
trap 'EndPrefix; kill "$XvfbId"; rm -rf "$Work"' EXIT
MakePrefix "$Work/prefix"
Program="$(WindowsPath "$Root/dist/win64")\\Quilltune.exe"
wine "$Root/build/win64/tools/startup_bench.exe" "$Program" "${1:-15}"
wine "$Root/build/win64/tools/page_bench.exe" "$Program" 3
wine "$Root/build/win64/tools/resize_bench.exe" "$Program" 96
