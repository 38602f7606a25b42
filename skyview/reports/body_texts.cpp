// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/body_texts.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "scene/catalogs/object_names.h"
#include "scene/words/disc_text.h"
#include "skyview/reports/host_texts.h"
#include "utils/text.h"

namespace skyview {
namespace {

using Arguments = std::initializer_list<CommonInterfaces::FormatArgument>;

std::string Line(HostText text, Arguments arguments) {
  return scene::ToUtf8(Localize(text, arguments)) + "\n";
}

HostText Nth(HostText first, int index) { return static_cast<HostText>(static_cast<int>(first) + index); }

// How far the body is ahead of the Sun along the ecliptic, radians, 0 to 2 pi.
double FindLongitudeFromSun(const ObservedBody& body, const ObservedBody& sun) {
  constexpr double kJ2000 = 2451545.0;
  const double obliquity = MeanObliquity(kJ2000);
  const auto longitude = [obliquity](const double v[3]) {
    return std::atan2(std::cos(obliquity) * v[1] + std::sin(obliquity) * v[2], v[0]);
  };
  const double ahead = std::fmod(longitude(body.apparent) - longitude(sun.apparent), 2.0 * scene::kPi);
  return ahead < 0.0 ? ahead + 2.0 * scene::kPi : ahead;
}

std::string MoonPhase(const scene::BodyModel& model) {
  const ObservedBody& moon = model.GetMoon().seen;
  const bool waxing = FindLongitudeFromSun(moon, model.GetSun().seen) < scene::kPi;
  return scene::GetMoonPhaseName(scene::GetMoonPhase(scene::GetLitPercent(moon.phaseAngle), waxing));
}

// In the evening sky while it is east of the Sun: as a crescent, half, or gibbous, and thence on as a full
// disc.
std::string PlanetPhase(const scene::BodyModel& model, const ObservedBody& seen) {
  constexpr int kCrescent = 0, kHalf = 1, kGibbous = 2, kFull = 3, kMorning = 4;
  const bool evening = FindLongitudeFromSun(seen, model.GetSun().seen) < scene::kPi;
  const int lit = scene::GetLitPercent(seen.phaseAngle);
  const int shape = lit < 45 ? kCrescent : lit <= 55 ? kHalf : lit < 97 ? kGibbous : kFull;
  return Localize(Nth(HostText::kFirstPlanetPhase, shape + (evening ? 0 : kMorning)), {});
}

std::string DescribeBody(const scene::BodyModel& model, int body) {
  const SSO_ID& id = model.GetBodies()[static_cast<std::size_t>(body)].id;
  const ObservedBody& seen = model.GetStates()[static_cast<std::size_t>(body)].seen;
  const std::string name = scene::GetPlanetOrMoonName(id), size = scene::FormatSize(2.0 * seen.angularRadius);
  const bool otherMoon = id.kind == FourCC("moon") && body != scene::kMoonBody;
  if (body == scene::kSunBody || otherMoon)
    return Line(HostText::kSunSeen, {name.c_str(), seen.magnitude, size.c_str()});
  const std::string phase = body == scene::kMoonBody ? MoonPhase(model) : PlanetPhase(model, seen);
  return Line(HostText::kBodySeen, {name.c_str(), seen.magnitude, size.c_str(),
                                    scene::GetLitPercent(seen.phaseAngle), phase.c_str()});
}

std::string DescribeEclipses(const scene::EclipseShadows& shadows) {
  std::string text;
  if (shadows.GetLunarEclipse() != scene::LunarEclipse::kNone) {
    const int kind =
        static_cast<int>(shadows.GetLunarEclipse()) - static_cast<int>(scene::LunarEclipse::kPenumbral);
    text += Line(HostText::kLunarEclipse, {Localize(Nth(HostText::kFirstLunarEclipse, kind), {}).c_str(),
                                           shadows.GetUmbralMagnitude(), shadows.GetPenumbralMagnitude()});
  }
  if (shadows.GetSolarEclipse() == scene::SolarEclipse::kElsewhere) {
    text += Line(HostText::kSolarEclipseElsewhere, {});
  } else if (shadows.GetSolarEclipse() != scene::SolarEclipse::kNone) {
    const int kind =
        static_cast<int>(shadows.GetSolarEclipse()) - static_cast<int>(scene::SolarEclipse::kPartial);
    text += Line(HostText::kSolarEclipse, {Localize(Nth(HostText::kFirstSolarEclipse, kind), {}).c_str(),
                                           shadows.GetSolarMagnitude()});
  }
  return text;
}

std::string DescribeSatellite(const scene::SkyFrame& frame, int body) {
  const scene::BodyModel& model = frame.GetBodies();
  const std::string name =
      scene::ToCodePage(scene::GetBodyLabel(model.GetBodies()[static_cast<std::size_t>(body)]));
  const HostText light = frame.IsSunlit(body) ? HostText::kSatelliteSunlit : HostText::kSatelliteInShadow;
  const double distance =
      model.GetStates()[static_cast<std::size_t>(body)].seen.distance * astro::kKilometresPerAu;
  return Line(HostText::kSatelliteSeen, {name.c_str(), distance, Localize(light, {}).c_str()});
}

}  // namespace

std::string DescribeBodies(const scene::SkyFrame& frame) {
  if (!frame.IsSeenFromEarth()) return "";
  const scene::BodyList& bodies = frame.GetBodies().GetBodies();
  std::string known, satellites;
  int count = 0;
  for (int body = 0; body < static_cast<int>(bodies.size()); ++body) {
    if (!frame.IsBodyDrawn(body)) continue;
    ++count;
    const int kind = bodies[static_cast<std::size_t>(body)].id.kind;
    if (kind == FourCC("plnt") || kind == FourCC("moon")) known += DescribeBody(frame.GetBodies(), body);
    if (kind == FourCC("scft")) satellites += DescribeSatellite(frame, body);
  }
  if (scene::IsOutsideModel(frame.GetBodies().GetMoment())) known += Line(HostText::kOutsideModel, {});
  return Line(HostText::kBodiesDrawn, {count}) + known + DescribeEclipses(frame.GetEclipses()) + satellites;
}

}  // namespace skyview
