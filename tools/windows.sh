#!/bin/bash
# Makes the Windows installer with Debian's cross-compiler and drives the installed program under Wine through a sample
# birth, with pictures of every window; as `windows.sh test`, passes the core's tests there.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/common.sh
packages="g++-mingw-w64-x86-64-posix nsis icoutils wine wine64 dpkg-dev imagemagick"
folder=$PWD/build/windows
# Wine has a Windows of its own in the build folder, and adds nothing to the desktop outside.
export HOME=$folder/home WINEPREFIX=$folder/wine WINEPATH="$folder/libraries/bin" LC_ALL=C.UTF-8 \
    WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
# The sources lie where the machine's packages do; lists of our own name them, and the machine's are left alone.
fetch_sources() {
    local own=(-o Dir::Etc::sourcelist="$folder/sources.list" -o Dir::Etc::sourceparts=- -o Dir::Cache="$folder/lists"
        -o Dir::State::lists="$folder/lists" -o APT::Sandbox::User="$(id -un)")
    as_root apt-get -q update
    mkdir -p "$folder/lists/partial" && cd "$folder"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
        'Origin: Debian' | sort -u >sources.list
    apt-get -q "${own[@]}" update
    apt-get -q "${own[@]}" source qt6-base libjpeg-turbo
}

# Builds the sources in a folder for Windows and puts them among the libraries.
cross_build() {
    cmake -S "$1" -B "$1/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$folder/libraries" \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/packaging/windows/toolchain.cmake" "${@:2}"
    cmake --build "$1/build" && cmake --install "$1/build"
}

build_libraries() {
    local library off="opengl dynamicgl vulkan direct2d sql network dbus xml concurrent freetype gif ico tabletevent
        accessibility_atspi_bridge graphicsview graphicseffect undocommand wizard calendarwidget splashscreen
        dockwidget columnview datawidgetmapper fontdialog colordialog systemtrayicon"
    cross_build "$folder"/qt6-base-*/ -DQT_HOST_PATH=/usr -DINPUT_opengl=no $(printf ' -DFEATURE_%s=OFF' $off) \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
    cross_build "$folder"/libjpeg-turbo-*/ -DENABLE_SHARED=OFF -DWITH_SIMD=OFF
    cp -r /usr/src/googletest "$folder" && cross_build "$folder/googletest"
    for library in libstdc++-6 libgcc_s_seh-1 libssp-0 libwinpthread-1; do  # the compiler's own
        x86_64-w64-mingw32-strip -o "$folder/libraries/bin/$library.dll" \
            "$(x86_64-w64-mingw32-g++-posix -print-file-name=$library.dll)"
    done
    install -D -t "$folder/libraries/licences" "$folder"/qt6-base-*/LICENSES/{LGPL,GPL}-3.0-only.txt \
        "$folder"/libjpeg-turbo-*/LICENSE.md
}

make_installer() {
    build windows palace-lantern
    quietly "Packing" cpack --config build/windows/CPackConfig.cmake -B build/windows
    rm -rf build/windows/pictures
    quietly "A sample birth under Wine" tools/display.sh tools/windows_session.sh
    echo "The installer is $(echo "$folder"/*-setup.exe), pictures are in $folder/pictures"
}

run_tests() {
    build windows core_tests
    wine build/windows/tests/core_tests.exe
}

ensure_packages $packages_build $packages_display $packages
if [ ! -d "$folder/libraries/licences" ]; then
    mkdir -p "$HOME"
    quietly "Fetching the libraries' sources" fetch_sources
    quietly "Building the libraries, which takes long but is done once" build_libraries
fi
if [ "${1:-}" = test ]; then run_tests; else make_installer; fi
