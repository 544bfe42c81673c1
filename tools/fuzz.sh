#!/usr/bin/env bash
# Runs each fuzzer for the given number of seconds (60 if none is given), from its seeds and from what earlier
# runs found, and prints a line for each. Fails if one finds anything; the input that did it is kept.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
seconds=${1:-60}

cmake --preset fuzz >/dev/null && cmake --build --preset fuzz >/dev/null || exit 1
# Pictures are made by the thousand: in memory, where that can be had.
if [ -w /dev/shm ]; then TMPDIR=/dev/shm; fi
TMPDIR=$(mktemp -d -p "${TMPDIR:-/tmp}")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

failed=0
printf '%-14s %12s %10s %9s  %s\n' fuzzer executions a-second coverage result
for name in bmp chart_file picture_name; do
    corpus=build/fuzz-corpus/$name
    findings=build/fuzz-findings/$name
    mkdir -p "$corpus" "$findings"
    if build/fuzz/fuzz/${name}_fuzz -max_total_time="$seconds" -print_final_stats=1 -timeout=10 \
        -artifact_prefix="$findings/" "$corpus" "fuzz/seeds/$name" >"$findings/log" 2>&1; then
        result="nothing found"
    else
        result="FAILED, see $findings"
        failed=1
    fi
    stat() { sed -n "s/^stat::$1: *//p" "$findings/log"; }
    coverage=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$findings/log" | tail -1)
    printf '%-14s %12s %10s %9s  %s\n' $name "$(stat number_of_executed_units)" "$(stat average_exec_per_sec)" \
        "$coverage" "$result"
done
exit $failed
