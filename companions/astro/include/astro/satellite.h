// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Artificial satellites from two-line elements: the SGP4/SDP4 model.
#pragma once

#include <string>

#include "astro/api.h"
#include "astro/object_records.h"

// Reads the two lines of an element set into a record that is ready for the model: radians, radians per
// minute, the epoch as a Julian date, the tag. `number` is the catalogue number (A0001 is 100001). False when
// a line is too short, a number cannot be read, the checksum is wrong, or the lines do not belong together:
// `error` is then one line that says which column of which line, the other results are untouched. Format:
// docs/formats/two_line_elements.md.
ASTRO_API bool ParseTwoLineElements(const std::string& line1, const std::string& line2,
                                    OrbitalElements& elements, int& number, std::string& error);

// Why the model cannot tell where a satellite is.
enum class SatelliteFault {
  kNone = 0,
  kEccentricity = 1,  // mean eccentricity out of range
  kMeanMotion = 2,    // mean motion below zero
  kPerturbedEccentricity = 3,
  kSemiLatusRectum = 4,
  kDecayed = 6,         // below the surface
  kTooFarFromEpoch = 7  // more than 200 years from it, or the moment is not a number
};

// One satellite, made ready once and then asked for many moments: what was asked before has no influence on
// the answer, but near it a resonant satellite is answered faster. SGP4/SDP4 in the form of Vallado,
// Crawford, Hujsak & Kelso 2006 (AIAA 2006-6753), constants WGS 72. One thread at a time.
class ASTRO_API SatelliteModel {
 public:
  // `elements` must carry the tag kTwoLineTag; without it the fault is
  // kMeanMotion, whose unit would be another.
  explicit SatelliteModel(const OrbitalElements& elements);
  ~SatelliteModel();
  // What was moved from can be assigned to or destroyed, nothing else.
  SatelliteModel(SatelliteModel&& other) noexcept;
  SatelliteModel& operator=(SatelliteModel&& other) noexcept;

  // What is wrong with the elements themselves, at their epoch.
  SatelliteFault GetFault() const;

  // Position (km) and velocity (km/s) relative to the Earth's centre, `minutes` after the
  // epoch: true equator, mean equinox of the epoch (TEME). After a fault the results are
  // untouched, but for kDecayed, where they are set.
  SatelliteFault GetState(double minutes, double position[3], double velocity[3]) const;

 private:
  struct Constants;
  Constants* m_Constants;  // owned
};

// From TEME to J2000 axes at a moment (Julian date, TT): the result of a rotation by the equation of the
// equinoxes and the inverse of PrecessionNutationMatrix.
ASTRO_API void TemeToJ2000(double julianDateTT, const double teme[3], double j2000[3]);
