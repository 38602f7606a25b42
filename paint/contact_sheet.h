// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "scene/display/display_list.h"

namespace paint {

// One picture of many: small copies of frames of one size in rows, each with a line of text below it. Texts
// of a frame that are too small to read in its copy are left out.
class ContactSheet {
 public:
  // `count` frames of that size in pixels. A copy is as wide as lets a row of them fill some 1600 pixels, but
  // 80 to 400 wide; there are as many columns as make the sheet about 1.6 times as wide as high.
  ContactSheet(int count, int width, int height);
  ~ContactSheet();
  ContactSheet(const ContactSheet&) = delete;
  ContactSheet& operator=(const ContactSheet&) = delete;

  // Puts the frame in the next place. False when the drawing library fails or all places are taken: `error`
  // says why.
  bool Add(const scene::DisplayList& list, const std::string& text, std::string& error);
  // Writes the sheet as a PNG file, as WritePicture does.
  bool Write(const std::string& path, std::string& error) const;

 private:
  struct Sheet;
  std::unique_ptr<Sheet> m_Sheet;
};

}  // namespace paint
