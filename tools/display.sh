#!/bin/bash
# Runs a command on a virtual display of its own, with a window manager, a session bus and, through that, the
# accessibility bus. The display's size in pixels is taken from DISPLAY_SIZE. Ends as the command ends.
set -euo pipefail
. "$(dirname "$0")/common.sh"

# In memory, as a person's runtime folder is.
scratch=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)")
export XDG_RUNTIME_DIR=$scratch/runtime XDG_CONFIG_HOME=$scratch/config LC_ALL=C.UTF-8
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
mkdir -m 700 "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME"
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME
started=()

clean_up() {
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
    wait
    rm -rf "$scratch"
}
trap clean_up EXIT

# What the servers say is of no interest unless one of them fails.
trap 'cat "$scratch/log" >&2' ERR
Xvfb -displayfd 3 -screen 0 "${DISPLAY_SIZE:-1366x768}x24" -nolisten tcp -noreset \
    3>"$scratch/display" >>"$scratch/log" 2>&1 &
started+=($!)
dbus-daemon --session --nofork --print-address=3 3>"$scratch/bus" >>"$scratch/log" 2>&1 &
started+=($!)
wait_for grep -q . "$scratch/display"
wait_for grep -q . "$scratch/bus"
DISPLAY=:$(cat "$scratch/display")
DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/bus")
export DISPLAY DBUS_SESSION_BUS_ADDRESS
openbox >>"$scratch/log" 2>&1 &
started+=($!)
wait_for xdotool get_num_desktops
trap - ERR
"$@"
