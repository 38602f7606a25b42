// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/caption.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scene/display/text_extents.h"
#include "scene/frame_helpers.h"

using Lines = std::vector<std::string>;

namespace {

const std::string kLong(60, 'a');

}  // namespace

// The standard picture is 1600 pixels wide, 28 of which are margins, and a character is taken for 0.62 of 13
// pixels: 195 characters fit.
TEST(Caption, TextsStandBesideEachOtherWhileTheyFit) {
  EXPECT_EQ(scene::MakeCaption({"one", "two", "three"}, 1600, 1000), (Lines{"one    two    three"}));
  EXPECT_EQ(scene::MakeCaption({kLong, kLong, "b"}, 1600, 1000), (Lines{kLong + "    " + kLong + "    b"}));
  EXPECT_EQ(scene::MakeCaption({kLong, kLong, kLong, kLong}, 1600, 1000),
            (Lines{kLong + "    " + kLong + "    " + kLong, kLong}));
}

TEST(Caption, CharactersCountAndNotBytes) {
  std::string cyrillic;
  for (int i = 0; i < 60; ++i) cyrillic += "я";
  EXPECT_EQ(scene::MakeCaption({cyrillic, cyrillic}, 1600, 1000).size(), 1u);
}

// At 300 x 1200 pixels a pixel is worth 0.474 of one of the standard picture, and 75 characters fit.
TEST(Caption, TextWiderThanThePictureIsBrokenBetweenWords) {
  EXPECT_EQ(scene::MakeCaption({"one", kLong + " four five six seven"}, 300, 1200),
            (Lines{"one", kLong + " four five six", "seven"}));
}

TEST(Caption, WordWiderThanThePictureIsLeftOut) {
  EXPECT_EQ(scene::MakeCaption({"one", kLong + kLong + " two"}, 300, 1200), (Lines{"one", "two"}));
}

TEST(Caption, LinesAboveAThirdOfThePictureAreLeftOut) {
  // 64 x 64: a line step is 7.8 pixels, so two lines stay; 16 characters fit in one.
  EXPECT_EQ(scene::MakeCaption({"first of all", "second of all", "third of all"}, 64, 64),
            (Lines{"first of all", "second of all"}));
}

TEST(Caption, NoLineIsWiderThanThePictureWhateverItsSize) {
  const Lines texts(13, "Место: На поверхности планеты и рядом с ней");
  for (int width = 64; width < 4000; width += 97) {
    for (int height = 64; height < 4000; height += 313) {
      const double unit = std::clamp(std::sqrt(width * height / 1.6e6), 0.4, 6.0);
      const auto lines = scene::MakeCaption(texts, width, height);
      EXPECT_LE(static_cast<double>(lines.size()) * 19.5 * unit, height / 3.0);
      for (const auto& line : lines) {
        EXPECT_LE(14.0 * unit + scene::TextExtents().GetWidth(line.c_str(), 13.0 * unit, 0), width);
      }
    }
  }
}

TEST(Caption, WithoutTextsThereIsNone) { EXPECT_EQ(scene::MakeCaption({}, 1600, 1000), Lines()); }

// The lines are short: beside them, on their dark ground, stands nothing either.
TEST(CaptionBlock, CompassLettersKeepOffItsGround) {
  host_test::FrameFixture f;
  f.frame.SetCaption({"Place", "Time", "Zoom"});
  int letters = 0;
  for (double altitude = 5.0; altitude < 30.0; altitude += 0.5) {
    f.SetLook(200.0, altitude);
    f.Compute();
    for (const auto& label : f.frame.GetParts().labels.GetLabels()) {
      if (label.kind != scene::LabelKind::kCompass && label.kind != scene::LabelKind::kCompassBetween)
        continue;
      ++letters;
      EXPECT_GE(label.place.y, 3 * scene::kCaptionLineStep * 0.99) << label.text << " at " << altitude;
    }
  }
  EXPECT_GT(letters, 0);
}
