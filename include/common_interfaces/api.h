// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// COMMON_INTERFACES_API marks what the shared library exports. COMMON_INTERFACES_BUILD is defined while the
// library's own sources are compiled.
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
