// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The solar-system model: where objects stand as an observer on the Earth sees them. docs/solar_system.md
// tells the models and how accurate they were measured to be.
#pragma once

#include "astro/api.h"
#include "astro/object_id.h"
#include "astro/object_records.h"

// How an observer sees a body. Vectors are on J2000 (ICRS) axes; PrecessionNutationMatrix takes them to the
// true equator of date, HorizonMatrix on to the horizon. No refraction.
struct ObservedBody {
  // Unit vector: where the body was when the light left, from where the observer is; of stars with proper
  // motion and the parallax of the Earth's orbit.
  double astrometric[3] = {0.0, 0.0, 0.0};
  // Unit vector: the same with the bending of light by the Sun and the
  // aberration of the Earth's motion and rotation.
  double apparent[3] = {0.0, 0.0, 0.0};
  // au from the observer when the light left; 0: infinitely far (a star without parallax).
  double distance = 0.0;
  double lightTime = 0.0;    // days; 0 for what stands outside the solar system
  double sunDistance = 0.0;  // au from the Sun; 0 for the Sun and for what stands outside the solar system
  // Radians, Sun - body - observer, 0 to pi; 0 for the Sun and outside the solar system.
  double phaseAngle = 0.0;
  double elongation = 0.0;                   // radians from the Sun's direction, 0 to pi
  double magnitude = kUnknownStarMagnitude;  // visual; kUnknownStarMagnitude where the model has none
  double angularRadius = 0.0;                // radians; 0: unknown or a point
  // au: the vector from the Sun to where the body was when the light left; 0 outside the solar system.
  double fromSun[3] = {0.0, 0.0, 0.0};
};

// A moment, an observer, and a few objects that the application is busy with: the aim object, the one the
// view is centred on; the locate object, the one searched for; additional objects; one object whose orbit is
// integrated numerically. An application may put its own class in its place: the virtual operations are those
// that the application's library calls, in this slot order.
//
// `data` of every operation is the converted record of the object's kind (object_records.h), at any address,
// which is copied; null for "plnt" and "moon" (those of moons.h), and for an object that was given before to
// any of the operations that keep one (the aim object is asked first, then the locate object, then the
// additional ones). Two-line elements must carry the tag kTwoLineTag.
//
// One thread at a time. Whoever observes hundreds of bodies a frame calls Observe with their
// records: for orbits of elements it allocates nothing. A satellite's model is costly to prepare:
// give satellites to SetAdditionalObject once.
class ASTRO_API CQXSolSys {
 public:
  // The moment is J2000.0, the observer at the Earth's centre.
  CQXSolSys();
  virtual ~CQXSolSys();
  CQXSolSys(const CQXSolSys&) = delete;
  CQXSolSys& operator=(const CQXSolSys&) = delete;

  // False, and nothing changes, when the object is of no kind that the model knows or its record is missing
  // or unusable (numbers that are not finite, a direction of length 0, a pericentre at 0 or below, a negative
  // eccentricity, a mean motion of 0 or below, a central body without gravity here, elements that SGP4
  // refuses).
  virtual bool SetAimObject(const SSO_ID& id, const void* data);
  virtual bool SetLocateObject(const SSO_ID& id, const void* data);
  // Adds the object, or replaces its record when it was there.
  virtual bool SetAdditionalObject(const SSO_ID& id, const void* data);
  // Starts the numerical integration at the epoch of the elements, about the Sun, perturbed by the planets
  // and the Moon. False also for elements about another body, for two-line elements, and for an epoch outside
  // the range of the planets (kFirstPlanetDate to kLastPlanetDate).
  virtual bool InitIntegr(const SSO_ID& id, const void* data);

  // The gravitational parameter of a central body ("plnt" 1 to 10, without its moons; "moon" 301),
  // au^3 / day^2; 0 for one that is not known. The Sun's is the square of kGaussianConstant; the
  // others are those of DE440 (Park et al. 2021).
  virtual double GetGravity(const SSO_ID& body) const;

  // The moment for everything below: Julian date in dynamical time (TT), and TT - UT1 in seconds
  // (ET_UT::Get). At a moment more than 100000 years from J2000.0, with a difference above 1e7 seconds,
  // or one that is not finite nothing is seen.
  void SetMoment(double julianDateTT, double deltaT);

  // The observer: on the Earth's surface at a geodetic place (WGS 84; radians, east and north positive;
  // metres), or at the Earth's centre. A place that is not finite, or more than a million kilometres above or
  // below the surface, is the Earth's centre.
  void SetObserverOnEarth(double lon, double lat, double height);
  void SetObserverAtEarthCentre();

  // How the observer sees a body now. False, and the result untouched, when the body is not known, its record
  // is missing or unusable, the observer is at its centre, or it does not exist at that moment (a satellite
  // that has decayed; the series' range is left). What stands outside the solar system is seen in every year;
  // outside the range of the planets without the parallax of the Earth's orbit, the bending of light and the
  // elongation.
  bool Observe(const SSO_ID& id, const void* data, ObservedBody& result) const;
  bool ObserveAimObject(ObservedBody& result) const;
  bool ObserveLocateObject(ObservedBody& result) const;
  bool ObserveAdditionalObject(const SSO_ID& id, ObservedBody& result) const;
  // Integrates to the moment first, from wherever the last call came to. False also when that
  // fails: the moment is out of range, the body comes too close to another, or 20000 steps were not
  // enough (the next call goes on from there).
  bool ObserveIntegrated(ObservedBody& result);

  // Where a body is at the moment itself, without light time: position (au) and velocity (au/day) relative to
  // the Sun, J2000 equatorial axes. The velocity may be null. Bodies of the solar system only: false for
  // others, and where Observe is false, but for the observer at the centre and for orbits about the Sun
  // outside the range of the planets; the results are then untouched.
  bool GetHeliocentricState(const SSO_ID& id, const void* data, double position[3], double velocity[3]) const;

  void ClearAdditionalObjects();

 private:
  struct Inside;
  Inside* m_Inside;  // owned
};
