// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/locale.h"

#include <string>

namespace {

// Made on first use, so that static initialisers of other libraries find it whatever the order of loading.
std::string& Locale() {
  static std::string s_Locale = "en";
  return s_Locale;
}

}  // namespace

const char* GetSystemLocale() { return Locale().c_str(); }

void SetSystemLocale(const char* locale) { Locale() = locale ? locale : ""; }
