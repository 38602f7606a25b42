# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# i686 Windows with MinGW-w64 (posix threads). Arithmetic in SSE2 registers, so that
# doubles round as on the other targets. Programs run through script/wine32.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -D_WIN32_WINNT=0x0601")
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../script/wine32)
set(CI_TARGET windows32)

set(CI_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest as sources")
set(CI_WITH_DRAWING OFF CACHE BOOL "skyview draws pictures (cairo)")
set(CI_WITH_ERFA OFF CACHE BOOL "Tests compare with liberfa")
