// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// ASTRO_API marks what the companion library astro exports. ASTRO_BUILD is defined while its own sources are
// compiled.
#pragma once

#if defined(_WIN32)
#if defined(ASTRO_BUILD)
#define ASTRO_API __declspec(dllexport)
#else
#define ASTRO_API __declspec(dllimport)
#endif
#else
#define ASTRO_API __attribute__((visibility("default")))
#endif
