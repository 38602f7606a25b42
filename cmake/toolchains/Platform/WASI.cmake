# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# What CMake knows of the system WASI from 3.31 on: programs are modules, and there are no shared libraries.
set(WASI 1)
set(CMAKE_EXECUTABLE_SUFFIX .wasm)
set_property(GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS FALSE)
