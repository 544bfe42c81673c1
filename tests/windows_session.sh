#!/bin/bash
# For windows.sh: installs, plays a person with a keyboard, takes a picture of each window, and takes all away again.
set -Eeuo pipefail
. tools/common.sh
cd build/windows
trap 'import -window root pictures/failed.png' ERR
title="Palace Lantern" chart="Palace Lantern - MEI LING" path="C:/Ünïcode 星/Ünïcode 星" front=
drive=$WINEPREFIX/drive_c data=$drive/users/$(id -un)/AppData

comes_forward() {
    [ "$(xdotool getactivewindow)" != "$front" ] && [[ $(xdotool getactivewindow getwindowname) =~ ^"$1"\ ?$ ]]
}
stands_still() { [ "$(import -window root rgb:- | cksum)" = "$(sleep 0.3 && import -window root rgb:- | cksum)" ]; }
is_gone() { ! "$@"; }
wait_for_end() { wait_for is_gone xdotool search --name "^$title" && front=; } # whose number the next one may have

# Waits until the next window, which has that title, is in front; takes the picture of that name, unless it is "-",
# and then presses the keys. What begins with "=" is typed, with "+" pasted: Wine types no letters of all scripts.
at() {
    wait_for comes_forward "$1"
    front=$(xdotool getactivewindow)
    wait_for stands_still
    [ "$2" = - ] || import -window root "pictures/$2.png"
    for key in "${@:3}"; do
        case $key in
            =*) xdotool type --delay 40 "${key#=}" && sleep 0.6 ;; # until a list takes the next letter for a new word
            +*) echo -n "${key#+}" | xclip -selection clipboard && xdotool key ctrl+v && sleep 1 ;;
            *) xdotool key --delay 60 "$key" ;;
        esac
    done
}

rm -rf "$WINEPREFIX" pictures
wineboot -i
mkdir pictures "$drive/Ünïcode 星"
wine "$(echo *-setup.exe)" &
for page in welcome folder menu; do front= at "$title Setup" $page Return; done # which are one window
wait_for test -e "$data/Roaming/Microsoft/Windows/Start Menu/Programs/$title/$title.lnk"
front= at "$title Setup" installed Return
at "$title" empty =mei1
at "$title Message" refused-key Return
at "$title" - "= ling" Tab =30 Tab =February Tab =1988 Tab =9 Tab =30 Return
at "$title Message" refused-date Return
at "$title" input =14 Return
at "$chart" chart Tab Tab Tab Return
at "$title Analysis" palace Escape
at "$chart" - alt+s
at "$title Analysis" show-all ctrl+s
at "$title" save "+$path.plf" Return
at "$title Analysis" - ctrl+p
at Print print ctrl+a "+$path.pdf" Return
at "$title Analysis" - Escape
at "$chart" - alt+j
at "Save as JPG" save-picture "+${path%/*}/星.jpg" Return
at "$chart" - alt+b
at "$title" back alt+e
wait_for_end
identify "$drive/Ünïcode 星/星.jpg" | grep JPEG
tail -c 6 "$drive${path#C:}.pdf" | grep %%EOF

# The file opens by its type, in the one program that may run.
wine start /unix "$drive${path#C:}.plf"
at "$title" - F6
wine start /unix "$drive${path#C:}.plf"
at "$title Message" second Return
at "$title" opened =9 Tab =30 Return
at "$chart" chart-again alt+h a
# But for the edge of the button in focus, which fades in.
[ "$(compare -metric AE pictures/chart.png pictures/chart-again.png null: 2>&1)" -lt 100 ]
at "About $title" about Escape
at "$chart" - alt+e
wait_for_end

wine "$data/Local/Programs/$title/Uninstall.exe" &
front= at "$title Uninstall" uninstall Return
wait_for is_gone test -e "$data/Local/Programs/$title"
front= at "$title Uninstall" uninstalled Return
wineserver -w
is_gone grep -iE 'palace|\.plf|QtProject' "$WINEPREFIX"/{user,system}.reg
[ -z "$(find "$drive" -ipath '*palace*')" ]
