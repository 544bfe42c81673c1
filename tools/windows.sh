#!/bin/bash
# Makes the Windows installer with Debian's cross-compiler and drives the installed program under Wine through a sample
# birth, with pictures of every window; as `windows.sh test`, passes the tests there.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/common.sh
packages="g++-mingw-w64-x86-64-posix nsis icoutils wine wine64 dpkg-dev imagemagick xclip"
folder=$PWD/build/windows
# Wine has a Windows of its own in the build folder, and adds nothing to the desktop outside.
export HOME=$folder/home WINEPREFIX=$folder/wine WINEPATH="$folder/libraries/bin" LC_ALL=C.UTF-8 \
    WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="

make_installer() {
    build windows palace-lantern
    quietly "Packing" cpack --config build/windows/CPackConfig.cmake -B build/windows
    quietly "A sample birth under Wine" tools/display.sh tools/windows_session.sh
    echo "The installer is $(echo "$folder"/*-setup.exe), pictures are in $folder/pictures"
}

# Without what Windows does not have: owners, devices, runtime folders, windows larger than the screen, a dark palette
# for its style; nor Wine: two screens, a printer, a command that opens pages.
run_tests() {
    build windows
    wine build/windows/tests/core_tests.exe
    tools/display.sh wine build/windows/tests/form_tests.exe --gtest_filter="-SavedFile.*:Picture.Overwrites*:\
Analysis.OfAllPalaces*:Start.IsOf*:ChartWindow.IsAsLarge*:InputForm.ShowsWhereTheFocus*:\
TwoScreens.*:Analysis.Is*:Program.OpensThePage*"
}

ensure_packages $packages_build $packages_display $packages
[ -d "$folder/libraries/licences" ] ||
    quietly "Building the libraries, which takes long but is done once" tools/windows_libraries.sh
if [ "${1:-}" = test ]; then run_tests; else make_installer; fi
