#!/usr/bin/env bash
# Runs every check and test on Debian 12, installing what the machine lacks. The last line is the sum:
# "N passed, N failed", with ", N skipped" when something could not run here. Fails when anything failed.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

RequirePackages "${BuildPackages[@]}" "${WinePackages[@]}" libgtest-dev libgmock-dev zlib1g-dev nlohmann-json3-dev "${ClangPackages[@]}" \
    clang-format clang-tidy lld debootstrap

Passed=0
Failed=0
Skipped=0
SkipReasons=()

Work=$(mktemp -d "${TMPDIR:-/tmp}/quilltune-test.XXXXXX")
# What ran in the Wine root left files of root's.
trap 'rm -rf "$Work" 2>/dev/null || AsRoot rm -rf "$Work"' EXIT

Pass() { Passed=$((Passed + $1)); }
Fail() { Failed=$((Failed + $1)); }
Skip() { Skipped=$((Skipped + $1)); }

# Runs a command, for twenty minutes at most, and leaves what it says in the file "$1.log" of the work folder and its exit
# status in "$1.status".
Record() {
    local name=$1 status=0
    shift
    timeout --kill-after=10 1200 "$@" >"$Work/$name.log" 2>&1 </dev/null || status=$?
    echo "$status" >"$Work/$name.status"
}

# Counts a check, which is one command that Record has run; what it says is shown only when it has failed.
CountCheck() {
    local name=$1
    if [ "$(cat "$Work/$name.status" 2>/dev/null || true)" = 0 ]; then
        Pass 1
        echo "ok: $name"
    else
        Fail 1
        echo "FAILED: $name"
        sed 's/^/    /' "$Work/$name.log" || true
    fi
}

Check() {
    Record "$@"
    CountCheck "$1"
}

# Builds something, with its output to be seen. Whatever could not be built fails again where it is missed.
Build() {
    local name=$1
    shift
    if "$@"; then
        Pass 1
        echo "ok: building the $name"
    else
        Fail 1
        echo "FAILED: building the $name"
    fi
}

# Counts the tests in the googletest log $2 of the suite $1, which ended with the status $3 (empty: it did not end).
CountTests() {
    local name=$1 log=$2 status=$3 ok bad skip
    touch "$log"
    sed -i 's/\r$//' "$log"
    ok=$(grep -c '^\[       OK \] ' "$log" || true)
    bad=$(grep -cE '^\[  FAILED  \] .* \([0-9]+ ms\)$' "$log" || true)
    skip=$(grep -cE '^\[  SKIPPED \] .* \([0-9]+ ms\)$' "$log" || true)
    # A run that stops half-way or says nothing of a failure is a failure of its own.
    if [ "$status" != 0 ] && [ "$bad" = 0 ] || [ $((ok + bad + skip)) = 0 ] || ! grep -q '^\[==========\] .* ran\.' "$log"; then
        bad=$((bad + 1))
        echo "FAILED: $name did not end as it should (status ${status:-none: stopped, or never started})"
    fi
    echo "$name: $ok passed, $bad failed, $skip skipped"
    [ "$bad" = 0 ] || sed 's/^/    /' "$log"
    Pass "$ok"
    Fail "$bad"
    Skip "$skip"
    while read -r line; do
        SkipReasons+=("$name: $line")
    done < <(grep -A 1 -E ': Skipped$' "$log" | grep -vE ': Skipped$|^--$' || true)
}

# Runs the test programs $3... under Wine with the program $2 of dist; $1 is empty or runs a command in the root with
# 32-bit Wine. Their logs come into the folder "$Work/$2".
WineTests() {
    local runner=$1 target=$2
    shift 2
    $runner "$Root/scripts/wine_tests.sh" "$Work/$target" "$Work/dist/$target" "$@" >"$Work/$target/run.log" 2>&1 ||
        cat "$Work/$target/run.log"
}

# Counts what WineTests has left of the target $1, whose suites are the others.
CountWineTests() {
    local target=$1 name
    shift
    for name in "$@"; do
        CountTests "$name ($target)" "$Work/$target/$name.log" "$(cat "$Work/$target/$name.status" 2>/dev/null || true)"
    done
}

# The root with 32-bit Wine is downloaded while everything else is built.
RootLog="$Work/wine_root.log"
if CanBeRoot; then
    "$Root/scripts/wine_root.sh" >"$Work/wine_root" 2>"$RootLog" &
    RootJob=$!
else
    echo "no root rights on this machine" >"$RootLog"
    RootJob=
fi

# clang-tidy needs nothing that is built here, and half of all the time: it has what the builds and the tests leave over.
Checks="$Root/tests/checks"
Record "clang-tidy" nice -n 19 "$Checks/tidy.sh" &
TidyJob=$!

# Tests of windows wait most of the time: they run beside what keeps the processors busy, and what they need is built first.
mkdir "$Work/dist" "$Work/win64" "$Work/win32"
Build "64-bit program" "$Root/scripts/build.sh" win64
Build "64-bit tests" BuildPreset win64 --target contract_tests peer_tests program_tests
cp -r "$Root/dist/win64" "$Work/dist/" || true
WineTests "" win64 "$Root"/build/win64/tests/{contract_tests,peer_tests,program_tests}.exe &
Win64Job=$!

Build "32-bit program" "$Root/scripts/build.sh" win32
Build "32-bit tests" BuildPreset win32 --target contract_tests
cp -r "$Root/dist/win32" "$Work/dist/" || true
# The 32-bit program on a 64-bit system: the 64-bit program_tests drives it, and sees the 64-bit view of the registry.
InWineRoot() { AsRoot "$Root/scripts/in_wine_root.sh" "$(cat "$Work/wine_root")" "$Work" "$@"; }
Win32Job=
if [ -n "$RootJob" ] && wait "$RootJob" && InWineRoot true 2>>"$RootLog"; then
    WineTests InWineRoot win32 "$Root"/build/{win32/tests/contract_tests,win64/tests/program_tests}.exe &
    Win32Job=$!
fi

Build "unit tests" BuildPreset native

UnitTests() {
    local name
    # Of where memory was allocated and freed a report shows two calls only: more take a sixth of all the time.
    for name in unit_tests contract_tests; do
        Record "$name" env ASAN_OPTIONS=malloc_context_size=2 "$Root/build/native/tests/$name"
    done
}
UnitTests &
UnitJob=$!

FuzzTargets=(language_file prefs profiles reg_file)
Fuzzing() {
    local name
    for name in "${FuzzTargets[@]}"; do Record "fuzzing of $name" "$Root/scripts/fuzz.sh" 7 "$name"; done
}
Fuzzing &
FuzzJob=$!

Check "formatting" "$Checks/format.sh"
Check "include directions" "$Checks/includes.sh"
Check "completion of command lines" "$Checks/completion.sh"
Check "reference of the settings" "$Checks/settings_reference.sh"
for Target in win32 win64; do
    for File in Quilltune:GUI qtune:CUI; do
        Name=${File%:*}
        Program="$Root/dist/$Target/$Name.exe"
        Check "imports of $Name ($Target)" "$Checks/imports.sh" "$Program"
        Check "file of $Name ($Target)" "$Checks/program_file.sh" "$Program" "${File#*:}"
    done
done

wait "$TidyJob"
CountCheck "clang-tidy"

wait "$UnitJob"
for Name in unit_tests contract_tests; do
    CountTests "$Name (native, sanitizers)" "$Work/$Name.log" "$(cat "$Work/$Name.status" 2>/dev/null || true)"
done
wait "$FuzzJob"
for Target in "${FuzzTargets[@]}"; do CountCheck "fuzzing of $Target"; done

wait "$Win64Job"
CountWineTests win64 contract_tests peer_tests program_tests
if [ -n "$Win32Job" ]; then
    wait "$Win32Job"
    CountWineTests win32 contract_tests program_tests
else
    Skip 2
    SkipReasons+=("contract_tests and program_tests (win32): no root with 32-bit Wine: $(tail -n 1 "$RootLog")")
fi

[ ${#SkipReasons[@]} = 0 ] || printf 'skipped: %s\n' "${SkipReasons[@]}"
Sum="$Passed passed, $Failed failed"
[ "$Skipped" = 0 ] || Sum+=", $Skipped skipped"
echo "$Sum"
[ "$Failed" = 0 ]
