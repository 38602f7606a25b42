// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/motion_values.h"

#include <cmath>
#include <utility>

#include "utils/numbers.h"

namespace skyview {
namespace {

constexpr std::size_t kMaxViewSteps = 3;

// What stands before the next comma, which goes too; `more` says whether there was one.
std::string_view TakePart(std::string_view& text, bool& more) {
  const auto comma = text.find(',');
  const auto part = text.substr(0, comma);
  more = comma != std::string_view::npos;
  text = more ? text.substr(comma + 1) : std::string_view();
  return part;
}

std::optional<double> ParseTimeStep(std::string_view text) {
  constexpr double kMaxStep = 100000.0;  // days
  constexpr std::pair<char, double> kUnitsPerDay[] = {{'s', 86400.0}, {'m', 1440.0}, {'h', 24.0}, {'d', 1.0}};
  for (const auto& [unit, perDay] : kUnitsPerDay) {
    if (text.empty() || text.back() != unit) continue;
    text.remove_suffix(1);
    const auto steps = ParseNumber(text, -kMaxStep * perDay, kMaxStep * perDay);
    if (!steps || *steps == 0.0) return std::nullopt;
    return *steps / perDay;
  }
  return std::nullopt;
}

bool TakeStep(std::string_view step, PlayRequest& play) {
  const auto equals = step.find('=');
  if (equals == std::string_view::npos) return false;
  const auto what = step.substr(0, equals), value = step.substr(equals + 1);
  if (what == "time" && !play.time) {
    play.time = ParseTimeStep(value);
    return play.time.has_value();
  }
  const auto angle = ParseNumber(value, -360.0, 360.0);
  if (what != "view" || !angle || play.view.size() == kMaxViewSteps) return false;
  play.view.push_back(*angle);
  return true;
}

}  // namespace

std::optional<MovingType> ParseMovingType(std::string_view text) {
  MovingType moving;
  bool more = false;
  const auto type = ParseNumber(TakePart(text, more), 0, 11);
  if (!type || (more && text != "keep")) return std::nullopt;
  moving.type = *type;
  moving.keep = more;
  return moving;
}

std::optional<PlayRequest> ParsePlay(std::string_view text) {
  PlayRequest play;
  for (bool more = true; more;) {
    if (!TakeStep(TakePart(text, more), play)) return std::nullopt;
  }
  bool moves = play.time.has_value();
  for (const double step : play.view) moves = moves || step != 0.0;
  if (!moves) return std::nullopt;
  return play;
}

std::optional<int> ParseFrameCount(std::string_view text) { return ParseNumber(text, 1, kMaxFrames); }

std::optional<FrameNames> FrameNames::Parse(std::string_view pattern) {
  FrameNames names;
  const auto percent = pattern.find('%');
  if (percent == std::string_view::npos) return std::nullopt;
  names.m_Before = pattern.substr(0, percent);
  auto rest = pattern.substr(percent + 1);
  if (rest.size() >= 2 && rest[0] == '0' && rest[1] >= '1' && rest[1] <= '9') {
    names.m_Digits = static_cast<std::size_t>(rest[1] - '0');
    rest.remove_prefix(2);
  }
  if (rest.empty() || rest.front() != 'd' || rest.find('%') != std::string_view::npos) return std::nullopt;
  names.m_After = rest.substr(1);
  return names;
}

std::string FrameNames::Get(int number) const {
  std::string digits = std::to_string(number);
  if (digits.size() < m_Digits) digits.insert(0, m_Digits - digits.size(), '0');
  return m_Before + digits + m_After;
}

}  // namespace skyview
