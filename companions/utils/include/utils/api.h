// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// UTILS_API marks what the companion library utils exports. UTILS_BUILD is defined while its own sources are
// compiled.
#pragma once

#if defined(_WIN32)
#if defined(UTILS_BUILD)
#define UTILS_API __declspec(dllexport)
#else
#define UTILS_API __declspec(dllimport)
#endif
#else
#define UTILS_API __attribute__((visibility("default")))
#endif
