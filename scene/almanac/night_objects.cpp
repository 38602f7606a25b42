// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_objects.h"

#include <algorithm>
#include <cmath>

#include "astro/coordinates.h"
#include "scene/almanac/night_samples.h"

namespace scene {
namespace {

constexpr double kFavourOfMessier = 1.5;  // magnitudes
constexpr double kLeastAltitude = 10.0 * kRadiansPerDegree;

// What is asked of the sky for an object.
struct Candidate {
  FoundObject object;
  Direction direction;  // J2000
  double magnitude;
  double surface = 0.0;  // magnitudes per square arcsecond; of a point none: not above any sky
  double size = 0.0;     // radians
  double favour = 0.0;   // magnitudes by which it is put before others
};

class ObjectRanking {
 public:
  ObjectRanking(const NightPlan& plan, const EarthPlace& place, double aperture)
      : m_Samples(MakeNightSamples(plan, place)),
        m_Power(std::max(aperture, kEyeAperture) / kEyeAperture),
        m_Gain(5.0 * std::log10(m_Power)) {}

  const std::vector<NightSample>& GetSamples() const { return m_Samples; }

  // Brighter than that is what can be seen in the darkest sky.
  double GetFaintest() const {
    return astro::GetNakedEyeLimit(astro::GetLuminance(astro::kDarkSky)) + m_Gain + 0.5;
  }

  void Add(const Candidate& candidate) {
    const NightSample* best = nullptr;
    double largest = 0.0;
    for (const auto& sample : m_Samples) {
      const double altitude = sample.GetAltitude(candidate.direction);
      if (altitude < kLeastAltitude) continue;
      const double margin = FindMargin(candidate, sample, altitude);
      if (margin < largest) continue;
      largest = margin;
      best = &sample;
    }
    if (best) m_Found.push_back({Describe(candidate, *best, largest), largest + candidate.favour});
  }

  std::vector<NightObject> Take(int most) {
    std::stable_sort(m_Found.begin(), m_Found.end(),
                     [](const Ranked& a, const Ranked& b) { return a.rank > b.rank; });
    std::vector<NightObject> best;
    for (const auto& found : m_Found) {
      if (static_cast<int>(best.size()) < most) best.push_back(found.object);
    }
    return best;
  }

 private:
  struct Ranked {
    NightObject object;
    double rank;
  };

  // What does not fit into the field of view: that of an eyepiece of the least power that an opening
  // allows.
  double FindOverflow(double size) const {
    constexpr double kEyepiece = 50.0 * kRadiansPerDegree;
    return size > 0.0 ? std::max(0.0, 5.0 * std::log10(size * m_Power / kEyepiece)) : 0.0;
  }

  double FindMargin(const Candidate& candidate, const NightSample& sample, double altitude) const {
    constexpr double kLossPerAirMass = 0.7, kSurfaceDepth = 1.0;  // magnitudes
    const double luminance = sample.GetLuminance(candidate.direction, altitude);
    const double spread =
        std::max(0.0, candidate.surface - astro::GetSurfaceMagnitude(luminance) - kSurfaceDepth);
    return astro::GetNakedEyeLimit(luminance) + m_Gain - candidate.magnitude -
           kLossPerAirMass * (astro::GetAirMass(altitude) - 1.0) - spread - FindOverflow(candidate.size);
  }

  static NightObject Describe(const Candidate& candidate, const NightSample& sample, double margin) {
    const auto stands = astro::MakeHorizonPlace(sample.axes, candidate.direction.v, 0.0);
    return {candidate.object,
            {sample.moment, stands.azimuth, stands.altitude},
            candidate.magnitude,
            VectorsAngle(candidate.direction.v, sample.moon.v),
            sample.GetAltitude(sample.moon),
            margin};
  }

  std::vector<NightSample> m_Samples;
  double m_Power;  // the least magnification
  double m_Gain;   // magnitudes
  std::vector<Ranked> m_Found;
};

double GetSurface(const DeepskyObject& object, double magnitude) {
  if (!(object.largest > 0.0f)) return 0.0;
  const double smallest = object.smallest > 0.0f ? object.smallest : object.largest;
  constexpr double kSquare = astro::kRadiansPerArcsecond * astro::kRadiansPerArcsecond;
  return magnitude + 2.5 * std::log10(0.25 * kPi * object.largest * smallest / kSquare);
}

double GetMagnitude(float code) { return 0.1 * code - 2.0; }

}  // namespace

std::vector<NightObject> FindBestObjects(const NightPlan& plan, const EarthPlace& place,
                                         const SkyCatalogs& catalogs, double aperture, int most) {
  ObjectRanking ranking(plan, place, aperture);
  const double faintest = ranking.GetFaintest();
  for (std::size_t i = 0; i < catalogs.deepsky.size(); ++i) {
    const DeepskyObject& object = catalogs.deepsky[i];
    const double magnitude = GetMagnitude(object.code);
    // Entries of catalogues that are single stars, or nothing at all, are no objects to look for.
    if (object.kind == FourCC("dsnv") || !object.hasMagnitude || magnitude > faintest) continue;
    ranking.Add({{ObjectGroup::kDeepsky, static_cast<int>(i)},
                 object.direction,
                 magnitude,
                 GetSurface(object, magnitude),
                 object.largest,
                 object.catalogs & kInMessier ? kFavourOfMessier : 0.0});
  }
  return ranking.Take(most);
}

std::vector<NightObject> FindBestSmallBodies(const NightPlan& plan, const EarthPlace& place,
                                             const SkyCatalogs& catalogs, double aperture, int most) {
  ObjectRanking ranking(plan, place, aperture);
  const double faintest = ranking.GetFaintest();
  CQXSolSys model;
  SetUpModel(plan.middle, place, model);
  for (std::size_t i = 0; i < catalogs.bodies.size(); ++i) {
    const SkyBody& body = catalogs.bodies[i];
    if (body.id.kind != FourCC("astr") && body.id.kind != FourCC("comt")) continue;
    ObservedBody seen;
    if (!model.Observe(body.id, &body.elements, seen) || !(seen.magnitude <= faintest)) continue;
    ranking.Add({{ObjectGroup::kBody, static_cast<int>(i)}, MakeDirection(seen.apparent), seen.magnitude});
  }
  return ranking.Take(most);
}

}  // namespace scene
