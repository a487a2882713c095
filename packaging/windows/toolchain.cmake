# Builds programs for 64-bit Windows with Debian's mingw-w64 (posix threads) and the static Qt in the folder that the
# environment variable TAVREL_QT_WINDOWS names.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(compiler x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(kit $ENV{TAVREL_QT_WINDOWS})
set(CMAKE_FIND_ROOT_PATH ${kit} /usr/${compiler})
set(CMAKE_PREFIX_PATH ${kit})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Code generators run here, and so do the programs that are built, with help.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/under-wine)
