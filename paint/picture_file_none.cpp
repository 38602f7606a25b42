// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// In place of picture_file.cpp where there is no drawing library.
#include "paint/picture_file.h"

namespace skyview {
namespace {

bool Refuse(std::string& error) {
  error = "this skyview was built without drawing";
  return false;
}

}  // namespace

bool CanDraw() { return false; }

bool MakeSvg(const SkyFrame&, std::string&, std::string& error) { return Refuse(error); }

bool MakePng(const SkyFrame&, std::string&, std::string& error) { return Refuse(error); }

bool WritePicture(const SkyFrame&, const std::string& path, std::string& error) {
  return WritePictureBytes(path, "", error);
}

bool WriteCurve(const LightCurve&, int, int, const std::string& path, std::string& error) {
  return WritePictureBytes(path, "", error);
}

bool WritePictureBytes(const std::string& path, const std::string&, std::string& error) {
  Refuse(error);
  error = path + ": " + error;
  return false;
}

}  // namespace skyview
