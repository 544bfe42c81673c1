#!/bin/bash
# Plays a long day through the real forms on a display of its own. The number of rounds may be given.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset bench >/dev/null
cmake --build --preset bench >&2
DISPLAY_SIZE=1920x1080 tools/display.sh \
    env -u QT_LINUX_ACCESSIBILITY_ALWAYS_ON build/bench/app/palace-lantern-long_day "$@"
