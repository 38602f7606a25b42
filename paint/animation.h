// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "scene/display/display_list.h"

namespace paint {

// An animated PNG: frames of one size one after the other, again and again. A reader that knows nothing of
// animations sees the first one. Written as the frames come, so that no more than one is in memory; the file
// of that name is the old one or whole (utils/replace_file.h).
class Animation {
 public:
  // `count`: of frames, 1 or more. `rate`: frames a second.
  Animation(int count, int rate);
  ~Animation();
  Animation(const Animation&) = delete;
  Animation& operator=(const Animation&) = delete;

  // Each is false, with one line in `error` that names the file, when it fails. A frame of another size than
  // the first one, and one more than there are, fails.
  bool Open(const std::string& path, std::string& error);
  bool Add(const scene::DisplayList& list, std::string& error);
  bool Close(std::string& error);  // puts the file in place; fails when frames are missing

 private:
  struct State;
  std::unique_ptr<State> m_State;
};

}  // namespace paint
