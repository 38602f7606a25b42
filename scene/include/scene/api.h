// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// SCENE_API marks what the companion library scene exports. SCENE_BUILD is defined while its own sources are
// compiled.
#pragma once

#if defined(_WIN32)
#if defined(SCENE_BUILD)
#define SCENE_API __declspec(dllexport)
#else
#define SCENE_API __declspec(dllimport)
#endif
#else
#define SCENE_API __attribute__((visibility("default")))
#endif
