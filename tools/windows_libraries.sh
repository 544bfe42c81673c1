#!/bin/bash
# Cross-builds the libraries for Windows from Debian's sources. To be run by tools/windows.sh.
set -euo pipefail
. tools/common.sh
project=$PWD folder=$PWD/build/windows libraries=$PWD/build/windows/libraries

# Lists of our own name the sources, which lie where the machine's packages do; the machine's lists are left alone.
fetch_sources() {
    local own=(-o Dir::Etc::sourcelist="$folder/sources.list" -o Dir::Etc::sourceparts=- -o Dir::Cache="$folder/lists"
        -o Dir::State::lists="$folder/lists" -o APT::Sandbox::User="$(id -un)")
    as_root apt-get -q update
    mkdir -p lists/partial
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
        'Origin: Debian' | sort -u >sources.list
    apt-get -q "${own[@]}" update
    apt-get -q "${own[@]}" source qt6-base libjpeg-turbo
}

cross_build() {
    cmake -S "$2" -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$libraries" \
        -DCMAKE_TOOLCHAIN_FILE="$project/packaging/windows/toolchain.cmake" "${@:3}"
    cmake --build "$1"
    cmake --install "$1"
}

mkdir -p "$folder"
cd "$folder"
fetch_sources
cross_build jpeg libjpeg-turbo-*/ -DENABLE_SHARED=OFF -DWITH_SIMD=OFF
cross_build gtest /usr/src/googletest
off="opengl dynamicgl vulkan sql network dbus xml concurrent freetype gif ico tabletevent
    accessibility_atspi_bridge graphicsview graphicseffect undocommand wizard splashscreen
    dockwidget columnview datawidgetmapper fontdialog colordialog systemtrayicon"
cross_build qt qt6-base-*/ -DINPUT_opengl=no $(printf ' -DFEATURE_%s=OFF' $off)
for library in libstdc++-6 libgcc_s_seh-1 libssp-0 libwinpthread-1; do # the compiler's own
    x86_64-w64-mingw32-strip -o "$libraries/bin/$library.dll" \
        "$(x86_64-w64-mingw32-g++-posix -print-file-name=$library.dll)"
done
install -D -t "$libraries/licences" qt6-base-*/LICENSES/{LGPL,GPL}-3.0-only.txt libjpeg-turbo-*/LICENSE.md
