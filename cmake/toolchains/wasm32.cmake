# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# WebAssembly with the system interface WASI, for browsers and Node (clang, and the distribution's libraries for
# wasm32). No exceptions, no threads, no processes. Programs run through script/wasm_node.
set(CMAKE_SYSTEM_NAME WASI)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# Instructions that every browser has known since 2021. Precompiled headers without their time, so that ccache keeps
# what is made with them.
set(ci_flags "-fno-exceptions -mbulk-memory -mnontrapping-fptoint -msign-ext -D_WASI_EMULATED_GETPID \
-D_WASI_EMULATED_PROCESS_CLOCKS -Xclang -fno-pch-timestamp")
set(CMAKE_C_FLAGS_INIT "${ci_flags}")
set(CMAKE_CXX_FLAGS_INIT "${ci_flags}")
# A stack as large as that of a program on Windows, below everything else: one that runs over ends the program.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-z,stack-size=1048576 -Wl,--stack-first -lwasi-emulated-getpid \
-lwasi-emulated-process-clocks")
set(CMAKE_FIND_ROOT_PATH /usr/lib/wasm32-wasi)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../script/wasm_node)
set(CI_TARGET wasm32)

set(CI_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest as sources")
set(CI_WITH_DRAWING OFF CACHE BOOL "skyview draws pictures (cairo)")
set(CI_WITH_ERFA OFF CACHE BOOL "Tests compare with liberfa")
set(CI_BUILD_PROGRAMS OFF CACHE BOOL "skyview and skydata need processes and exceptions")
