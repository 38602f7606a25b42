// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/disc_text.h"

#include <cmath>

#include "astro/planets.h"
#include "scene/view/directions.h"
#include "scene/words/words.h"

namespace scene {

std::string FormatSize(double angle) {
  const double seconds = angle / kRadiansPerDegree * 3600.0;
  constexpr double kMinute = 60.0, kDegree = 3600.0;
  if (seconds >= kDegree) return Localize(Word::kDegreesAcross, {seconds / kDegree});
  return seconds < 2.0 * kMinute ? Localize(Word::kSecondsAcross, {seconds})
                                 : Localize(Word::kMinutesAcross, {seconds / kMinute});
}

int GetLitPercent(double phaseAngle) {
  return static_cast<int>(std::lround(50.0 * (1.0 + std::cos(phaseAngle))));
}

int GetMoonPhase(int litPercent, bool waxing) {
  constexpr int kNew = 0, kFull = 4, kEighths = 8;
  if (litPercent <= 1) return kNew;
  if (litPercent >= 99) return kFull;
  const int shape = litPercent < 45 ? 1 : litPercent <= 55 ? 2 : 3;  // crescent, quarter, gibbous
  return waxing ? shape : kEighths - shape;
}

bool IsOutsideModel(const SkyMoment& moment) {
  return !(moment.julianDateTT >= kFirstPlanetDate && moment.julianDateTT <= kLastPlanetDate);
}

std::string GetMoonPhaseName(int phase) {
  return CommonInterfaces::FormatLocalizedText(
      static_cast<unsigned>(Word::kFirstMoonPhase) + static_cast<unsigned>(phase), {});
}

}  // namespace scene
