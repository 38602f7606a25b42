// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>
#include <string>

namespace test_support {

// Puts the process into a locale that writes 1,5 for one and a half, while it lives. The build makes one for
// its tests ("comma", tests/CMakeLists.txt) where the system can; otherwise one of the system is taken.
class CommaLocale {
 public:
  CommaLocale() : m_Previous(std::setlocale(LC_ALL, nullptr)) {
    for (const char* name :
         {"comma", "de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "ru_RU.UTF-8", "German_Germany.1252"}) {
      if (std::setlocale(LC_ALL, name) && IsSet()) return;
    }
    std::setlocale(LC_ALL, m_Previous.c_str());
  }
  ~CommaLocale() { std::setlocale(LC_ALL, m_Previous.c_str()); }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  // False where neither was to be had.
  bool IsSet() const { return *std::localeconv()->decimal_point == ','; }

 private:
  std::string m_Previous;
};

}  // namespace test_support
