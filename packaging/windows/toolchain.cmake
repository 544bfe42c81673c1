# Debian's cross-compiler for 64-bit Windows; the libraries are those that tools/windows.sh has built with
# it, and Qt's tools are those that run here.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
cmake_path(SET libraries NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/windows/libraries)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${libraries})
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/*-linux-gnu/cmake)
