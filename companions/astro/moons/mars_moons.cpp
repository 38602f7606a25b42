// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A. T. Sinclair 1989, "The orbits of Phobos and Deimos", Astronomy and Astrophysics 220, 321: ellipses that
// turn evenly on Laplacian planes, referred to the equator and equinox B1950.0.
#include <cmath>

#include "astro/constants.h"
#include "astro/two_body.h"
#include "astro/vectors.h"
#include "companions/astro/moons/moon_orbit.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

namespace {

// Degrees and km; longitudes run along the equator to the node of the Laplacian plane, then along that.
struct MarsMoon {
  double axis, eccentricity, inclination;
  double longitude[3];   // at the epoch, a day, a squared year
  double pericentre[2];  // at the epoch, a day
  double node[2];
  double planeNode[2];  // at the epoch, a year
  double planeTilt[2];
  double swing[2];  // of the longitude: amplitude and phase of the sine of the node's longitude
};

constexpr MarsMoon kMoons[2] = {
    {9379.40,
     0.014979,
     1.1029,
     {232.412, 1128.8445566, 0.001237},
     {278.96, 0.435258},
     {327.90, -0.435330},
     {47.386, -0.00140},
     {37.271, 0.00080},
     {0.0, 0.0}},
    {23461.13,
     0.000391,
     1.7901,
     {28.963, 285.1618875, 0.0},
     {111.7, 0.017985},
     {240.38, -0.018008},
     {46.367, -0.00138},
     {36.623, 0.00079},
     {-0.274, -43.83}},
};

constexpr double kEpoch = 2441266.5;

// From the mean equator and equinox B1950.0 of FK4 to J2000: E. M. Standish 1982, Astronomy and Astrophysics
// 115, 20: the precession of Lieske et al. 1977 and the 0.525 arc second of the equinox.
constexpr double kToJ2000[9] = {0.9999256794956877, -0.0111814832204662, -0.0048590038153592,
                                0.0111814832391717, 0.9999374848933135,  -0.0000271625947142,
                                0.0048590037723143, -0.0000271702937440, 0.9999881946023742};

}  // namespace

void MarsMoonState(int moon, double date, double position[3], double velocity[3]) {
  const MarsMoon& m = kMoons[moon];
  const double days = date - kEpoch, years = days / astro::kDaysPerJulianYear;
  const double pericentre = m.pericentre[0] + m.pericentre[1] * days;
  const double node = m.node[0] + m.node[1] * days;
  const double planeNode = m.planeNode[0] + m.planeNode[1] * years;
  const double planeTilt = m.planeTilt[0] + m.planeTilt[1] * years;
  const double longitude = m.longitude[0] + m.longitude[1] * days + m.longitude[2] * years * years +
                           m.swing[0] * std::sin(Radians(node + m.swing[1]));
  const double anomaly = SolveKeplerEllipse(m.eccentricity, Radians(longitude - pericentre));
  const double c = std::cos(anomaly), s = std::sin(anomaly), e = m.eccentricity;
  const double major = m.axis / astro::kKilometresPerAu, minor = major * std::sqrt(1.0 - e * e);
  const double rate = Radians(m.longitude[1] - m.pericentre[1]) / (1.0 - e * c);
  const auto toJ2000 = [&](double x, double y, double v[3]) {
    v[0] = x;
    v[1] = y;
    v[2] = 0.0;
    TurnAboutZ(Radians(pericentre - node), v);
    TurnAboutX(Radians(m.inclination), v);
    TurnAboutZ(Radians(node - planeNode), v);
    TurnAboutX(Radians(planeTilt), v);
    TurnAboutZ(Radians(planeNode), v);
    MV3prod(kToJ2000, v, v);
  };
  toJ2000(major * (c - e), minor * s, position);
  if (velocity != nullptr) toJ2000(-major * rate * s, minor * rate * c, velocity);
}

}  // namespace astro_internal
