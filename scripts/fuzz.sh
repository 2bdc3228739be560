#!/usr/bin/env bash
# Feeds the parsers with inputs that libFuzzer makes up from the samples in tests/fuzz/corpus. An input that breaks one is
# left in build/fuzz. What a run finds of interest is kept there too and the next run begins with it.
#   scripts/fuzz.sh [seconds for each target [targets...]]
set -euo pipefail
. "$(dirname "$0")/lib.sh"

Seconds=${1:-60}
Targets=("${@:2}")
[ ${#Targets[@]} -gt 0 ] || Targets=(language_file prefs profiles reg_file)

RequirePackages "${BuildPackages[@]}" "${ClangPackages[@]}"
Folder="$Root/build/fuzz"
BuildPreset native --target fuzz
for Target in "${Targets[@]}"; do
    mkdir -p "$Folder/corpus/$Target"
    Say "Fuzzing $Target for $Seconds seconds"
    "$Root/build/native/tests/fuzz" "$Target" -max_total_time="$Seconds" -max_len=4096 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$Folder/$Target-" "$Folder/corpus/$Target" "$Root/tests/fuzz/corpus/$Target"
done
