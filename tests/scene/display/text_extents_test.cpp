// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/text_extents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

// Every text has one width, and what is asked for is kept.
class FixedExtents : public TextExtents {
 public:
  explicit FixedExtents(double width) : m_Width(width) {}
  double GetWidth(const char* utf8, double size, unsigned style) const override {
    asked.push_back({utf8, size, style});
    return m_Width;
  }
  struct Question {
    std::string text;
    double size;
    unsigned style;
  };
  mutable std::vector<Question> asked;

 private:
  double m_Width;
};

const Label* FindLabel(const FrameFixture& f, const std::string& text) {
  const auto& labels = f.frame.GetParts().labels.GetLabels();
  const auto found =
      std::find_if(labels.begin(), labels.end(), [&text](const Label& l) { return text == l.text; });
  return found == labels.end() ? nullptr : &*found;
}

}  // namespace

TEST(TextExtents, WidthCountsCharactersAndNotBytes) {
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("α", 10.0, 0), TextExtents().GetWidth("a", 10.0, 0));
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("Ригель", 10.0, 0), 37.2);
}

TEST(TextExtents, EstimateGrowsWithLengthAndSizeAndNotWithTheStyle) {
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("", 10.0, 0), 0.0);
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("Vega", 10.0, 0), 24.8);  // 4 * 0.62 * 10
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("Vega", 25.0, 0), 62.0);
  EXPECT_DOUBLE_EQ(TextExtents().GetWidth("Vega", 10.0, kItalicText | kBoldText), 24.8);
}

TEST(TextExtents, TextsThatAreTooWideFindNoPlace) {
  FrameFixture f;
  const FixedExtents wide(1700.0), narrow(5.0);
  f.frame.SetTextExtents(wide);
  f.Compute();
  EXPECT_TRUE(f.frame.GetDisplayList().GetTexts().empty());
  f.frame.SetTextExtents(narrow);
  f.Compute();
  for (const char* name : {"Sirius", "Betelgeuse", "Rigel", "M42"}) EXPECT_TRUE(f.HasLabel(name)) << name;
}

// It is put on the right of the star, and on the left where it is too wide for that.
TEST(TextExtents, WidthDecidesOnWhichSideOfAStarTheNameStands) {
  FrameFixture f;
  f.shown.planets = f.shown.moons = false;
  f.SetLook(140.0, 25.0);
  f.Compute();
  const DrawnStar* sirius = f.Find(2491);
  ASSERT_NE(sirius, nullptr);
  const auto place = sirius->output->m_Place;
  const double room = 1600.0 - static_cast<double>(place.x);
  ASSERT_LT(room, static_cast<double>(place.x)) << "it stands in the right half of the picture";
  const FixedExtents narrow(room - 50.0), wide(room + 50.0);
  f.frame.SetTextExtents(narrow);
  f.Compute();
  const Label* label = FindLabel(f, "Sirius");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->anchor, 0.0);
  f.frame.SetTextExtents(wide);
  f.Compute();
  label = FindLabel(f, "Sirius");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->anchor, 1.0);
}

TEST(TextExtents, AreAskedForTheSizeAndStyleInWhichTheTextIsPainted) {
  FrameFixture f;
  f.shown.compass = true;
  f.camera.SetZoom(0.35);
  f.SetLook(180.0, 20.0);
  const FixedExtents extents(40.0);
  f.frame.SetTextExtents(extents);
  f.Compute();
  const DisplayList& list = f.frame.GetDisplayList();
  ASSERT_FALSE(list.GetTexts().empty());
  unsigned styles = 0;
  for (const TextRecord& text : list.GetTexts()) {
    const auto asked = std::any_of(extents.asked.begin(), extents.asked.end(), [&](const auto& question) {
      return question.text == list.GetText(text) && static_cast<float>(question.size) == text.size &&
             question.style == text.style;
    });
    EXPECT_TRUE(asked) << list.GetText(text);
    styles |= text.style;
  }
  EXPECT_EQ(styles, unsigned{kItalicText | kBoldText}) << "both were among them";
}
