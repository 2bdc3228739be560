#!/usr/bin/env bash
# Prints the measures of docs/performance.md, in its order: of the 64-bit program under Wine, pair by pair beside what it is
# compared with, so that the ratio holds whatever the machine is doing; and natively those that need no window.
#   scripts/bench.sh [pairs]
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

Heading() { printf '\n%s\n' "$1"; }
# Runs the program $1 of the tools under Wine, in the working folder.
Measure() {
    local tool=$1
    shift
    (cd "$Work" && wine "$Root/build/win64/tools/$tool.exe" "$@" </dev/null)
}

RequirePackages "${BuildPackages[@]}" "${WinePackages[@]}" libgtest-dev libgmock-dev zlib1g-dev
"$Root/scripts/build.sh"
BuildPreset win64 --target startup_bench page_bench resize_bench command_bench apply_bench prefs_bench
NativeBenches=(prefs_bench)
LanguagePackages=(libsimpleini-dev libinih-dev)
if dpkg -s "${LanguagePackages[@]}" >/dev/null 2>&1; then NativeBenches+=(language_bench); fi
BuildPreset bench --target "${NativeBenches[@]}"

Work=$(mktemp -d "${TMPDIR:-/tmp}/quilltune-bench.XXXXXX")
StartXvfb
trap 'EndPrefix; kill "$XvfbId"; rm -rf "$Work"' EXIT
MakePrefix "$Work/prefix"
Program="$(WindowsPath "$Root/dist/win64")\\Quilltune.exe"

Heading "Machine"
sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | sort | uniq -c | sed 's/^ *\([0-9]*\) /\1 x /'
echo "Debian $(cat /etc/debian_version), $(wine --version), load $(cut -d ' ' -f 1 /proc/loadavg), $(date +%F)"
Heading "Start"
Measure startup_bench "$Program" "${1:-15}"
Heading "Command line"
Measure command_bench "${Program%Quilltune.exe}qtune.exe" "${1:-15}"
Heading "Window"
Measure resize_bench "$Program" 96
Heading "Pages"
Measure page_bench "$Program" 3
Heading "Apply"
Measure apply_bench 15
Heading "Preference files, natively"
"$Root/build/bench/tools/prefs_bench"
Heading "Preference files, under Wine"
Measure prefs_bench "$(WindowsPath "$Work")"
Heading "Language files, natively"
if [[ " ${NativeBenches[*]} " == *" language_bench "* ]]; then
    "$Root/build/bench/tools/language_bench"
else
    echo "skipped: it needs ${LanguagePackages[*]}"
fi
Heading "Size"
for Target in win32 win64; do
    for File in Quilltune qtune; do
        printf '%s %-9s %8d bytes\n' "$Target" $File "$(stat -c %s "$Root/dist/$Target/$File.exe")"
    done
done
