// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/caption.h"

#include <algorithm>
#include <utility>

#include "scene/display/text_extents.h"
#include "scene/view/view_geometry.h"

namespace scene {
namespace {

constexpr const char* kBetweenTexts = "    ";

class LineBreaker {
 public:
  explicit LineBreaker(double maxEms) : m_MaxEms(maxEms) {}

  void Add(const std::string& text) {
    if (Fits(text)) {
      Append(text, kBetweenTexts);
    } else {
      AddWords(text);
    }
  }
  std::vector<std::string> TakeLines() { return std::move(m_Lines); }

 private:
  bool Fits(const std::string& line) const {
    return TextExtents().GetWidth(line.c_str(), 1.0, 0) <= m_MaxEms;
  }

  void Append(const std::string& piece, const char* between) {
    if (m_Lines.empty() || !Fits(m_Lines.back() + between + piece)) {
      m_Lines.push_back(piece);
    } else {
      m_Lines.back() += between + piece;
    }
  }

  void AddWords(const std::string& text) {
    bool begun = false;
    for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end + 1) {
      end = std::min(text.find(' ', begin), text.size());
      const std::string word = text.substr(begin, end - begin);
      if (word.empty() || !Fits(word)) continue;
      if (begun) {
        Append(word, " ");
      } else {
        m_Lines.push_back(word);
      }
      begun = true;
    }
  }

  double m_MaxEms;
  std::vector<std::string> m_Lines;
};

}  // namespace

std::vector<std::string> MakeCaption(const std::vector<std::string>& texts, int width, int height) {
  const double unit = GetPictureUnit(width, height);
  LineBreaker breaker((width / unit - 2.0 * kCaptionLeft) / kCaptionFont);
  for (const auto& text : texts) breaker.Add(text);
  auto lines = breaker.TakeLines();
  const auto room = static_cast<std::size_t>(height / unit / 3.0 / kCaptionLineStep);
  if (lines.size() > room) lines.resize(room);
  return lines;
}

}  // namespace scene
