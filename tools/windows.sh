#!/bin/bash
# Makes the Windows installer with Debian's cross-compiler and drives the installed program under Wine through a sample
# birth, with pictures of every window; as `windows.sh test`, passes the tests there.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/common.sh
packages="g++-mingw-w64-x86-64-posix nsis icoutils wine wine64 dpkg-dev imagemagick xclip"
folder=$PWD/build/windows libraries=$PWD/build/windows/libraries
# Wine has a Windows of its own in the build folder, and adds nothing to the desktop outside.
export HOME=$folder/home WINEPREFIX=$folder/wine WINEPATH=$libraries/bin LC_ALL=C.UTF-8 \
    WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="

# Lists of our own name the sources, which lie where the machine's packages do; the machine's lists are left alone.
fetch_sources() (
    local own=(-o Dir::Etc::sourcelist="$folder/sources.list" -o Dir::Etc::sourceparts=- -o Dir::Cache="$folder/lists"
        -o Dir::State::lists="$folder/lists" -o APT::Sandbox::User="$(id -un)")
    as_root apt-get -q update && mkdir -p "$folder/lists/partial" && cd "$folder" &&
        apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
            'Origin: Debian' | sort -u >sources.list &&
        apt-get -q "${own[@]}" update && apt-get -q "${own[@]}" source qt6-base libjpeg-turbo
)

cross_build() {
    cmake -S "$2" -B "$folder/$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$libraries" \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/packaging/windows/toolchain.cmake" "${@:3}" &&
        cmake --build "$folder/$1" && cmake --install "$folder/$1"
}

build_libraries() {
    quietly "Fetching the libraries' sources" fetch_sources
    quietly "Building libjpeg-turbo" cross_build jpeg "$folder"/libjpeg-turbo-*/ -DENABLE_SHARED=OFF -DWITH_SIMD=OFF
    quietly "Building GoogleTest" cross_build gtest /usr/src/googletest
    quietly "Building Qt, which takes long but is done once" cross_build qt "$folder"/qt6-base-*/ -DINPUT_opengl=no \
        $(printf ' -DFEATURE_%s=OFF' opengl dynamicgl vulkan sql network dbus xml concurrent freetype gif ico \
            tabletevent accessibility_atspi_bridge graphicsview graphicseffect undocommand wizard splashscreen \
            dockwidget columnview datawidgetmapper fontdialog colordialog systemtrayicon)
    install -s --strip-program=x86_64-w64-mingw32-strip -t "$libraries/bin" \
        $(printf '%s.dll\n' libstdc++-6 libgcc_s_seh-1 libssp-0 libwinpthread-1 |
            xargs -I LIBRARY x86_64-w64-mingw32-g++-posix -print-file-name=LIBRARY) # the compiler's own
    install -D -t "$libraries/licences" "$folder"/{qt6-base-*/LICENSES/{LGPL,GPL}-3.0-only.txt,libjpeg-turbo-*/LICENSE.md}
}

make_installer() {
    build windows palace-lantern
    quietly "Packing" cpack --config build/windows/CPackConfig.cmake -B build/windows
    quietly "A sample birth under Wine" tools/display.sh tests/windows_session.sh
    echo "The installer is $(echo "$folder"/*-setup.exe), pictures are in $folder/pictures"
}

run_tests() {
    build windows
    wine build/windows/tests/core_tests.exe
    tools/display.sh timeout 300 wine build/windows/tests/form_tests.exe \
        --gtest_filter="-$(cut -d' ' -f1 tests/not_on_windows.txt | paste -sd:)"
}

ensure_packages $packages_build $packages_display $packages
[ -d "$libraries/licences" ] || build_libraries
if [ "${1:-}" = test ]; then run_tests; else make_installer; fi
