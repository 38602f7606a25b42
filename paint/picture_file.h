// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "scene/display/display_list.h"

namespace paint {

// Whether this build draws at all; one without the drawing library fails with one line that says so.
bool CanDraw();

// A sheet of paper: its sides and the margin that is left free on each of them, points of 1/72 inch.
struct Sheet {
  double width, height, margin;
};

// The list as the bytes of a file: all kinds are painted by the same calls. The SVG carries its texts a
// second time as invisible text, so that they can be searched for and copied. A PDF has one page: the
// sheet, with the list as large as its margins allow in the middle, or without a sheet the list, a pixel as
// one point. False when the drawing library fails: `error` then says how.
bool MakePng(const scene::DisplayList& list, std::string& bytes, std::string& error);
bool MakeSvg(const scene::DisplayList& list, std::string& bytes, std::string& error);
bool MakePdf(const scene::DisplayList& list, std::string& bytes, std::string& error,
             const std::optional<Sheet>& sheet = std::nullopt);

// Writes the list to `path`, as its ending says, a PDF on the sheet: beside it first, then renamed, so that
// a picture of that name is either the old one or whole. False when that fails: `error` is then one line
// that names the file, and nothing new is left behind.
bool WritePicture(const scene::DisplayList& list, const std::string& path, std::string& error,
                  const std::optional<Sheet>& sheet = std::nullopt);

// The same with the bytes of a picture.
bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error);

}  // namespace paint
