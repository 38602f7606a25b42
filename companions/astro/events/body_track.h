// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "astro/horizon_frame.h"
#include "astro/object_id.h"
#include "astro/solar_system.h"

namespace astro_internal {

// N smooth functions of the date for whoever asks often: computed at multiples of a step and kept, between
// them a polynomial through eight neighbours. A wave comes out within 2e-6 of its height when it lasts 14
// steps, within 1e-9 when it lasts 36.
template <int N>
class GriddedFunctions {
 public:
  // False where there is nothing.
  using Compute = std::function<bool(double date, double values[N])>;

  GriddedFunctions(double step, Compute compute) : m_Step(step), m_Compute(std::move(compute)) {}

  bool Get(double date, double values[N]);

 private:
  static constexpr int kPoints = 8, kKept = 16;
  struct Node {
    int index = -1;
    bool isKnown = false;
    double values[N] = {};
  };

  const Node& GetNode(int index);

  double m_Step;
  Compute m_Compute;
  Node m_Nodes[kKept];
};

// A body seen from the Earth's centre, and how the Earth is turned.
struct BodyState {
  // Apparent direction times distance, au: axes of the true equator of date. The distance is that of the
  // Earth's own frame, from which parallax and size follow: the way of the light differs by 0.0001 of it.
  double apparent[3];
  double sidereal;  // apparent sidereal time of Greenwich, radians, whole turns left out or not
};

// The way of a body over the sky (`data` as CQXSolSys::Observe takes it, kept by reference) at dates in TT.
// The Sun and stars come out within 0.001 arc second of the model, planets within 0.01, the Moon from a place
// within 0.02.
class BodyTrack {
 public:
  BodyTrack(const SSO_ID& body, const void* data);

  // False where the model sees nothing.
  bool Get(double date, BodyState& state);

 private:
  bool Compute(double date, double values[4]);

  SSO_ID m_Body;
  const void* m_Data;
  CQXSolSys m_Model;
  GriddedFunctions<4> m_Values;
};

// How a body stands over a place.
struct PlaceState {
  double fromPlace[3];  // apparent direction times distance, au: axes of the true equator of date
  double altitude;      // radians, of its centre, without refraction
  double localTime;     // apparent sidereal time of the place, radians, whole turns left out or not
  double distance;      // au
};

// The same from a place on the Earth.
class PlaceTrack {
 public:
  PlaceTrack(const SSO_ID& body, const void* data, const astro::EarthPlace& place);

  bool Get(double date, PlaceState& state);

 private:
  BodyTrack m_Body;
  astro::EarthPlace m_Place;
  double m_Fixed[3];  // the place, au: on its meridian, across it (0), north pole
  double m_Zenith[3];
};

// For looks at the height of a body: from the lowest to the highest point it is half a day, at a pole more.
inline constexpr double kHalfTurnStep = 1.0 / 8.0;  // days

// Radians, -pi to pi, westwards.
double HourAngleOf(const PlaceState& state);

// From north over east, [0, 2 pi).
double AzimuthOf(const PlaceState& state, double latitude);

}  // namespace astro_internal
