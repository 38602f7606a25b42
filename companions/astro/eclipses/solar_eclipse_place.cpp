// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/planets.h"
#include "astro/rise_set.h"
#include "astro/solar_eclipses.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/besselian.h"
#include "companions/astro/eclipses/covered_part.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

using astro_internal::BesselianElements;
using astro_internal::FindZero;
using astro_internal::kEventPrecision;
using astro_internal::ShadowAtPlace;
using astro_internal::ShadowTrack;

// Days from the greatest eclipse: the penumbra has left the Earth three hours and a half from it.
constexpr double kReach = 0.2;
constexpr double kLookStep = 0.01;  // days between looks for the maximum
// Days from the maximum at a place; its partial phase ends within two and a half hours of it.
constexpr double kPartialReach = 0.15;

double Turned(double angle) { return angle < 0.0 ? angle + kTurn : angle; }

// The eclipse at one place.
class PlaceView {
 public:
  explicit PlaceView(const EarthPlace& place) : m_Place(place) {}

  ShadowAtPlace At(double date) { return m_Shadow.At(date, m_Place); }

  // The Sun's centre; it is seen from the altitude at which its upper limb rises.
  HorizonPlace SunAt(double date) {
    const BesselianElements elements = m_Shadow.Get(date);
    double place[3], sun[3], axes[9];
    astro_internal::GetPlaceOnEarth(m_Place, elements.sidereal, place);
    for (int i = 0; i < 3; ++i) sun[i] = elements.sun[i] - place[i];
    HorizonMatrix(elements.sidereal + m_Place.lon, m_Place.lat, axes);
    const double radius = GetBodyRadius(kSun) / kEarthEquatorialRadius;
    return MakeHorizonPlace(axes, sun, GetRiseAltitude(std::asin(radius / Vmod(sun, 3))));
  }

  double AboveHorizon(double date) {
    const HorizonPlace sun = SunAt(date);
    return sun.altitude - sun.eventAltitude;
  }

  // `towards`: 1 where the Moon's edge touches that of the Sun on the side of the Moon's centre, -1 on the
  // other one.
  EclipseContact Contact(double date, double towards) {
    EclipseContact contact;
    contact.moment = MakeMomentTT(date);
    const HorizonPlace sun = SunAt(date);
    contact.sunAltitude = sun.altitude;
    contact.sunAzimuth = sun.azimuth;
    contact.isVisible = sun.altitude >= sun.eventAltitude;
    const ShadowAtPlace shadow = At(date);
    contact.positionAngle = Turned(std::atan2(towards * shadow.u, towards * shadow.v));
    const BesselianElements elements = m_Shadow.Get(date);
    double zenith[3];
    sfp(1.0, m_Place.lon + elements.sidereal, m_Place.lat, zenith);
    const double toZenith = std::atan2(Dot(zenith, elements.east), Dot(zenith, elements.north));
    contact.zenithAngle = Turned(std::remainder(contact.positionAngle - toZenith, kTurn));
    return contact;
  }

 private:
  EarthPlace m_Place;
  ShadowTrack m_Shadow;
};

struct Cover {
  double magnitude, obscuration;
};

Cover CoverAt(const ShadowAtPlace& shadow) {
  const double sun = 0.5 * (shadow.penumbra + shadow.umbra), moon = 0.5 * (shadow.penumbra - shadow.umbra);
  const bool isInUmbra = shadow.apart < std::fabs(shadow.umbra);
  return {isInUmbra ? shadow.Ratio() : shadow.Magnitude(),
          astro_internal::FindCoveredPart(sun, moon, shadow.apart)};
}

void FindWhatIsSeen(PlaceView& view, LocalSolarEclipse& eclipse) {
  if (eclipse.maximum.isVisible) {
    eclipse.bestSeen = eclipse.maximum.moment;
    eclipse.magnitudeSeen = eclipse.magnitude;
    eclipse.obscurationSeen = eclipse.obscuration;
    return;
  }
  // The Sun rises or sets nearer to the maximum or farther from it.
  const auto above = [&view](double date) { return view.AboveHorizon(date); };
  astro_internal::FindZerosAndGrazes(above, eclipse.first.moment.julianDateTT,
                                     eclipse.last.moment.julianDateTT, astro_internal::kHalfTurnStep,
                                     [&](double date, bool) {
                                       const Cover cover = CoverAt(view.At(date));
                                       if (cover.magnitude <= eclipse.magnitudeSeen) return;
                                       eclipse.bestSeen = MakeMomentTT(date);
                                       eclipse.magnitudeSeen = cover.magnitude;
                                       eclipse.obscurationSeen = cover.obscuration;
                                     });
}

}  // namespace

std::optional<LocalSolarEclipse> ComputeLocalSolarEclipse(const GlobalSolarEclipse& eclipse,
                                                          const EarthPlace& place) {
  PlaceView view(place);
  const double greatest = eclipse.greatest.julianDateTT;
  const auto square = [&view](double date) {
    const ShadowAtPlace shadow = view.At(date);
    return shadow.u * shadow.u + shadow.v * shadow.v;
  };
  const double maximum = astro_internal::FindLowest(square, greatest - kReach, greatest + kReach, kLookStep);
  const ShadowAtPlace shadow = view.At(maximum);
  if (!(shadow.apart < shadow.penumbra)) return std::nullopt;

  const auto outsidePenumbra = [&view](double date) {
    const ShadowAtPlace at = view.At(date);
    return at.apart - at.penumbra;
  };
  const auto outsideUmbra = [&view](double date) {
    const ShadowAtPlace at = view.At(date);
    return at.apart - std::fabs(at.umbra);
  };
  const auto touch = [&](auto outside, double there) {
    return FindZero(outside, maximum, outside(maximum), there, outside(there), kEventPrecision);
  };
  LocalSolarEclipse local;
  local.maximum = view.Contact(maximum, 1.0);
  local.first = view.Contact(touch(outsidePenumbra, maximum - kPartialReach), 1.0);
  local.last = view.Contact(touch(outsidePenumbra, maximum + kPartialReach), 1.0);
  if (outsideUmbra(maximum) < 0.0) {
    // In a total eclipse the last of the Sun vanishes on the side that the Moon's centre comes to last.
    const double towards = shadow.umbra < 0.0 ? -1.0 : 1.0;
    local.kind = shadow.umbra < 0.0 ? SolarEclipse::kTotal : SolarEclipse::kAnnular;
    local.second = view.Contact(touch(outsideUmbra, local.first.moment.julianDateTT), towards);
    local.third = view.Contact(touch(outsideUmbra, local.last.moment.julianDateTT), towards);
  }
  const Cover cover = CoverAt(shadow);
  local.magnitude = cover.magnitude;
  local.obscuration = cover.obscuration;
  FindWhatIsSeen(view, local);
  return local;
}

}  // namespace astro
