// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/display_list.h"

namespace paint {

// Whether this build draws at all; one without the drawing library fails with one line that says so.
bool CanDraw();

// The list as the bytes of a file: all kinds are painted by the same calls. The SVG carries its texts a
// second time as invisible text, so that they can be searched for and copied. A PDF has one page, a pixel of
// the list is one point. False when the drawing library fails: `error` then says how.
bool MakePng(const scene::DisplayList& list, std::string& bytes, std::string& error);
bool MakeSvg(const scene::DisplayList& list, std::string& bytes, std::string& error);
bool MakePdf(const scene::DisplayList& list, std::string& bytes, std::string& error);

// Writes the list to `path`, as its ending says: beside it first, then renamed, so that a picture of that
// name is either the old one or whole. False when that fails: `error` is then one line that names the file,
// and nothing new is left behind.
bool WritePicture(const scene::DisplayList& list, const std::string& path, std::string& error);

// The same with the bytes of a picture.
bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error);

}  // namespace paint
