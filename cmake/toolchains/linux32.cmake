# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# i386 Linux with the 64-bit system's own compiler (g++-multilib). Arithmetic in SSE2 registers, so that doubles
# round as on the other targets.
set(CMAKE_CXX_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CMAKE_C_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CI_TARGET linux32)

# 64-bit libraries cannot be linked: GoogleTest is built from the distribution's sources, nothing is drawn.
set(CI_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest as sources")
set(CI_WITH_DRAWING OFF CACHE BOOL "skyview draws pictures (cairo)")
set(CI_WITH_ERFA OFF CACHE BOOL "Tests compare with liberfa")
