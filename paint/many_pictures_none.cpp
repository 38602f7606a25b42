// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// In place of contact_sheet.cpp, animation.cpp and star_trails.cpp where there is no drawing library.
#include "paint/animation.h"
#include "paint/contact_sheet.h"
#include "paint/star_trails.h"

namespace paint {
namespace {

bool Refuse(std::string& error) {
  error = "this skyview was built without drawing";
  return false;
}

bool Refuse(const std::string& path, std::string& error) {
  Refuse(error);
  error = path + ": " + error;
  return false;
}

}  // namespace

struct ContactSheet::Sheet {};
ContactSheet::ContactSheet(int, int, int) {}
ContactSheet::~ContactSheet() = default;
bool ContactSheet::Add(const scene::DisplayList&, const std::string&, std::string& error) {
  return Refuse(error);
}
bool ContactSheet::Write(const std::string& path, std::string& error) const { return Refuse(path, error); }

struct Animation::State {};
Animation::Animation(int, int) {}
Animation::~Animation() = default;
bool Animation::Open(const std::string& path, std::string& error) { return Refuse(path, error); }
bool Animation::Add(const scene::DisplayList&, std::string& error) { return Refuse(error); }
bool Animation::Close(std::string& error) { return Refuse(error); }

struct StarTrails::State {};
StarTrails::StarTrails(int, int) {}
StarTrails::~StarTrails() = default;
bool StarTrails::Add(const scene::DisplayList&, std::string& error) { return Refuse(error); }
bool StarTrails::Write(const std::string& path, std::string& error) { return Refuse(path, error); }

}  // namespace paint
