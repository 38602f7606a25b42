// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// In place of contact_sheet.cpp where there is no drawing library.
#include "paint/contact_sheet.h"

namespace paint {

struct ContactSheet::Sheet {};

ContactSheet::ContactSheet(int, int, int) {}
ContactSheet::~ContactSheet() = default;

bool ContactSheet::Add(const scene::DisplayList&, const std::string&, std::string& error) {
  error = "this skyview was built without drawing";
  return false;
}

bool ContactSheet::Write(const std::string& path, std::string& error) const {
  error = path + ": this skyview was built without drawing";
  return false;
}

}  // namespace paint
