// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of the options that move the camera or mark the sky, read from their text as in option_values.h:
// each reader answers nothing for a text that is not wholly of the accepted form.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/session/mark_text.h"

namespace skyview {

using scene::kMaxMarks;
using scene::ParseMark;

// "3" or "3,keep".
struct MovingType {
  int type = 0;  // 0 to 11
  bool keep = false;
};

// What changes from one frame of a sequence to the next.
struct PlayRequest {
  std::optional<double> time;  // days; not 0
  std::vector<double> view;    // degrees: azimuth or longitude, altitude or latitude, slope; at most three
};

inline constexpr int kMaxFrames = 10000;

std::optional<MovingType> ParseMovingType(std::string_view text);

// "time=10m" or "view=1,view=0.5" or both, each with a step that is not 0. A step of time has a unit, s, m, h
// or d, and is at most 100000 days; one of the view is at most 360 degrees, and 0 leaves that angle alone.
std::optional<PlayRequest> ParsePlay(std::string_view text);
std::optional<int> ParseFrameCount(std::string_view text);  // 1 to kMaxFrames

// The name of a sequence's pictures: "sky-%03d.png", with one number, "%d" or "%0Nd" with N from 1 to 9, and
// no other percent sign.
class FrameNames {
 public:
  static std::optional<FrameNames> Parse(std::string_view pattern);
  std::string Get(int number) const;

 private:
  std::string m_Before, m_After;
  std::size_t m_Digits = 1;
};

}  // namespace skyview
