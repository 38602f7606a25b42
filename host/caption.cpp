// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/caption.h"

#include <algorithm>
#include <utility>

#include "host/labels.h"
#include "host/sky_frame.h"

namespace skyview {
namespace {

constexpr const char* kBetweenTexts = "    ";
// The estimate holds for names; texts of many wide letters and digits are a little wider, in some fonts.
constexpr double kAllowance = 1.1;

class LineBreaker {
 public:
  explicit LineBreaker(double maxEms) : m_MaxEms(maxEms) {}

  // Puts the piece behind `between`, or on a line of its own. False when it fits on none.
  bool Add(const std::string& piece, const char* between) {
    if (!Fits(piece)) return false;
    if (m_Lines.empty() || !Fits(m_Lines.back() + between + piece)) {
      m_Lines.push_back(piece);
    } else {
      m_Lines.back() += between + piece;
    }
    return true;
  }

  void AddWords(const std::string& text) {
    const char* between = kBetweenTexts;
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = std::min(text.find(' ', begin), text.size());
      if (end > begin) {
        Add(text.substr(begin, end - begin), between);
        between = " ";
      }
      begin = end + 1;
    }
  }

  std::vector<std::string> TakeLines() { return std::move(m_Lines); }

 private:
  bool Fits(const std::string& line) const {
    return kAllowance * LabelPlacer::EstimateWidth(line.c_str(), 1.0) <= m_MaxEms;
  }

  double m_MaxEms;
  std::vector<std::string> m_Lines;
};

}  // namespace

std::vector<std::string> MakeCaption(const std::vector<std::string>& texts, int width, int height) {
  const double unit = GetPictureUnit(width, height);
  LineBreaker breaker((width / unit - 2.0 * kCaptionLeft) / kCaptionFont);
  for (const auto& text : texts) {
    if (!breaker.Add(text, kBetweenTexts)) breaker.AddWords(text);
  }
  auto lines = breaker.TakeLines();
  const auto room = static_cast<std::size_t>(height / unit / 3.0 / kCaptionLineStep);
  if (lines.size() > room) lines.resize(room);
  return lines;
}

}  // namespace skyview
