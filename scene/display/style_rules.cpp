// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/style_rules.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

using Way = Ink::Way;

unsigned char ToByte(double value) {
  return static_cast<unsigned char>(std::lround(std::clamp(value, 0.0, 255.0)));
}

constexpr Rgba kWhite = {255, 255, 255, 255}, kBlack = {0, 0, 0, 255};

Ink Flat(const Rgba& colour, float opacity = 1.0f, float width = 1.0f) {
  return {Way::kFlat, colour, opacity, width};
}

InkTable MakePrintInks() {
  constexpr Ink kNone = {Way::kFlat, kWhite, 0.0f, 1.0f};
  InkTable inks;
  inks.SetAll({Way::kDarker, {}, 1.1f, 0.9f});
  inks.SetLayer(Layer::kBackground, Flat(kWhite));
  inks.SetLayer(Layer::kMilkyWay, Flat({84, 92, 108, 255}, 0.9f));
  inks.SetLayer(Layer::kHaze, kNone);
  inks.Set(Layer::kFigures, InkShape::kLine, Flat({84, 104, 146, 255}, 1.4f, 0.75f));
  inks.Set(Layer::kSkyLines, InkShape::kLine, {Way::kDarker, {}, 1.3f, 0.7f});
  inks.Set(Layer::kDeepsky, InkShape::kArea, Flat({60, 140, 110, 255}, 2.0f));
  inks.SetLayer(Layer::kStars, Flat(kBlack));
  inks.Set(Layer::kStars, InkShape::kGlow, Flat(kWhite));
  inks.Set(Layer::kBodies, InkShape::kPoint, Flat({40, 40, 44, 255}));
  inks.Set(Layer::kBodies, InkShape::kDisc, {});
  inks.Set(Layer::kBodies, InkShape::kGlow, Flat(kWhite));
  inks.Set(Layer::kBodies, InkShape::kLine, Flat(kBlack, 1.6f));
  inks.Set(Layer::kGround, InkShape::kArea, Flat({229, 228, 222, 255}));
  inks.Set(Layer::kGround, InkShape::kLine, Flat({70, 70, 66, 255}));
  inks.SetLayer(Layer::kCaptionGround, Flat(kWhite));
  inks.Set(Layer::kChart, InkShape::kArea, Flat(kWhite, 1.2f));
  inks.Set(Layer::kChart, InkShape::kPoint, Flat(kBlack));
  return inks;
}

InkTable MakeNightInks() {
  InkTable inks;
  inks.SetAll({Way::kTone, {232, 0, 0, 255}, 1.0f, 1.0f});
  inks.SetLayer(Layer::kBackground, Flat(kBlack));
  inks.Set(Layer::kStars, InkShape::kPoint, {Way::kTone, {240, 0, 0, 255}, 1.5f, 1.0f});
  inks.SetLayer(Layer::kHaze, Flat(kBlack, 0.0f));
  inks.SetLayer(Layer::kCaptionGround, Flat(kBlack));
  inks.Set(Layer::kChart, InkShape::kArea, Flat(kBlack, 1.2f));
  return inks;
}

InkTable MakePhotoInks() {
  InkTable inks;
  inks.Set(Layer::kMilkyWay, InkShape::kArea, {Way::kAsIs, {}, 1.5f, 1.0f});
  // Cameras see the red light of hydrogen, for which eyes are blind at night.
  inks.Set(Layer::kDeepsky, InkShape::kArea, {Way::kTone, {255, 96, 116, 255}, 1.3f, 1.0f});
  return inks;
}

}  // namespace

Rgba Ink::Apply(const Rgba& from) const {
  const double brightest = std::max({from.red, from.green, from.blue}),
               darkest = std::min({from.red, from.green, from.blue});
  const auto tone = [&](unsigned char channel) { return ToByte(channel * brightest / 255.0); };
  const auto darker = [&](unsigned char channel) { return ToByte(0.70 * (channel - 0.78 * darkest)); };
  Rgba to = from;
  switch (way) {
    case Way::kAsIs:
      break;
    case Way::kTone:
      to = {tone(colour.red), tone(colour.green), tone(colour.blue), from.alpha};
      break;
    case Way::kFlat:
      to = {colour.red, colour.green, colour.blue, from.alpha};
      break;
    case Way::kDarker:
      to = {darker(from.red), darker(from.green), darker(from.blue), from.alpha};
      break;
  }
  to.alpha = ToByte(from.alpha * static_cast<double>(opacity));
  return to;
}

float StyleRules::GetStarRadius(float radius, float unit) const {
  constexpr float kLeast = 0.6f;  // what the faintest stars have (GetDotRadius)
  if (starContrast == 1.0f) return starScale * radius;
  return starScale * kLeast * unit * std::pow(radius / (kLeast * unit), starContrast);
}

const StyleRules& GetStyleRules(ChartStyle style) {
  static constexpr StyleRules kScreen = {};
  static constexpr StyleRules kPrint = {.nightSky = true,
                                        .landscape = false,
                                        .border = true,
                                        .ringedBodies = true,
                                        .starSigns = true,
                                        .solidStars = true,
                                        .starScale = 1.15f,
                                        .starContrast = 1.3f};
  static constexpr StyleRules kNight = {
      .nightSky = true, .landscape = false, .ringedBodies = true, .starSigns = true};
  static constexpr StyleRules kPhoto = {.symbols = false,
                                        .caption = false,
                                        .glareReach = 6.5f,
                                        .glareFrom = 1.3f,
                                        .glareStrength = 0.62,
                                        .glareMiddle = 0.20};
  switch (style) {
    case ChartStyle::kPrint:
      return kPrint;
    case ChartStyle::kNight:
      return kNight;
    case ChartStyle::kPhoto:
      return kPhoto;
    default:
      return kScreen;
  }
}

const InkTable* GetInks(ChartStyle style) {
  static const InkTable print = MakePrintInks(), night = MakeNightInks(), photo = MakePhotoInks();
  switch (style) {
    case ChartStyle::kPrint:
      return &print;
    case ChartStyle::kNight:
      return &night;
    case ChartStyle::kPhoto:
      return &photo;
    default:
      return nullptr;
  }
}

}  // namespace scene
