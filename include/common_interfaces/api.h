// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// COMMON_INTERFACES_API marks what the shared library exports. COMMON_INTERFACES_BUILD is defined while the
// library's own sources are compiled.
//
// COMMON_INTERFACES_INLINE marks members of exported classes whose bodies stand in the header, for speed: the
// library has them all the same, for programs that were built when it alone had them.
#pragma once

#if defined(_WIN32)
#if defined(COMMON_INTERFACES_BUILD)
#define COMMON_INTERFACES_API __declspec(dllexport)
#else
#define COMMON_INTERFACES_API __declspec(dllimport)
#endif
#else
#define COMMON_INTERFACES_API __attribute__((visibility("default")))
#endif

#if defined(COMMON_INTERFACES_BUILD)
#define COMMON_INTERFACES_INLINE COMMON_INTERFACES_API __attribute__((used))
#else
#define COMMON_INTERFACES_INLINE
#endif
