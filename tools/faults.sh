#!/usr/bin/env bash
# Tries the faults that saves and starts meet in life: full disks, closed and vanishing folders, kills at random
# moments, files that change under an open dialog. Prints a line for each, and fails if one did harm.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1

cmake --preset release -B build/faults -DPALACE_LANTERN_FAULTS=ON >/dev/null && cmake --build build/faults >/dev/null || exit 1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
cp build/faults/tools/faults/save_faults build/faults/app/Bmp2Jpeg.dll "$work"
export XDG_RUNTIME_DIR=$work/runtime HOME=$work
mkdir -m 700 "$XDG_RUNTIME_DIR"
failed=0

# A fault in a folder of its own: save_fault NAME [named]
save_fault() {
    rm -rf "$work/folder"
    mkdir "$work/folder"
    "$work/save_faults" "$1" "$work/folder" "$work/Bmp2Jpeg.dll" "${@:2}" || failed=1
}

# The same on a file system of its own with so much room and so many files: save_fault_on_disk SIZE FILES NAME [named]
save_fault_on_disk() {
    mkdir -p "$work/disk"
    unshare --map-root-user --mount bash -c '
        mount -t tmpfs -o "size=$1,nr_inodes=$2" none "$3/disk" || exit 1
        mkdir "$3/disk/folder"
        exec "$3/save_faults" "$4" "$3/disk/folder" "$3/Bmp2Jpeg.dll" "${@:5}"' - "$1" "$2" "$work" "${@:3}" || failed=1
}

# Permissions mean nothing to the superuser.
save_fault_as_person() {
    if [ "$(id -u)" -ne 0 ]; then
        save_fault "$@"
        return
    fi
    rm -rf "$work/folder"
    install -d -m 700 -o nobody "$work/folder"
    HOME=$work/folder XDG_RUNTIME_DIR=$work/folder setpriv --reuid=nobody --regid=nogroup --clear-groups \
        "$work/save_faults" "$1" "$work/folder" "$work/Bmp2Jpeg.dll" || failed=1
}

for files in nameless named; do
    save_fault chart_on_limit $files
    save_fault picture_on_limit $files
    save_fault jpeg_on_limit $files
    save_fault_on_disk 4m 100 chart_on_full_disk $files
    save_fault_on_disk 4m 100 picture_on_full_disk $files
    save_fault_on_disk 64m 20k killed_chart $files
    save_fault_on_disk 64m 20k killed_picture $files
done
save_fault_as_person read_only_folder
save_fault_as_person no_process_left
save_fault vanishing_folder
save_fault_on_disk 64m 20k twenty_locks
PYTHONPATH=tools tools/display.sh /usr/bin/python3 tools/faults/window_faults.py build/faults/app || failed=1
exit $failed
