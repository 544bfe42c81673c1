#!/bin/bash
# Builds the benchmarks in release mode, runs them on a display of their own and prints one table. An argument
# picks a part of what the windows' benchmark measures: "starts" or "windows".
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset bench >/dev/null
cmake --build --preset bench >&2
build=$PWD/build/bench/bench
# In memory, as a user's runtime folder is.
runtime=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$runtime"' EXIT
{
    printf 'figure\tours\tbare\tratio\treach\tverdict\n'
    "$build/core_bench"
    DISPLAY_SIZE=1920x1080 tools/display.sh \
        env -u QT_LINUX_ACCESSIBILITY_ALWAYS_ON XDG_RUNTIME_DIR="$runtime" "$build/windows_bench" "$@"
} | column -t -s $'\t'
