// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utils/api.h"

// The language of the application's texts, a short code such as "en", "de" or "ru". Process-wide; "en" until
// it is set. The pointer stays valid until the next SetSystemLocale; null sets "". One thread only.
UTILS_API const char* GetSystemLocale();
UTILS_API void SetSystemLocale(const char* locale);
