// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// In place of picture_file.cpp where there is no drawing library.
#include "paint/picture_file.h"

namespace paint {
namespace {

bool Refuse(std::string& error) {
  error = "this skyview was built without drawing";
  return false;
}

}  // namespace

bool CanDraw() { return false; }

bool MakePng(const scene::DisplayList&, std::string&, std::string& error) { return Refuse(error); }
bool MakeSvg(const scene::DisplayList&, std::string&, std::string& error) { return Refuse(error); }
bool MakePdf(const scene::DisplayList&, std::string&, std::string& error, const std::optional<Sheet>&) {
  return Refuse(error);
}

bool WritePicture(const scene::DisplayList&, const std::string& path, std::string& error,
                  const std::optional<Sheet>&) {
  Refuse(error);
  error = path + ": " + error;
  return false;
}

}  // namespace paint
