// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The solar-system model: where objects stand as an observer on the Earth sees them.
#pragma once

#include "astro/api.h"
#include "astro/object_id.h"
#include "astro/object_records.h"

// How an observer sees a body. Vectors are on J2000 (ICRS) axes.
struct ObservedBody {
  double astrometric[3] = {0.0, 0.0, 0.0};  // unit vector: light time, parallax of the place, proper motion
  double apparent[3] = {0.0, 0.0, 0.0};     // unit vector: the same with the aberration of light
  double distance =
      0.0;  // au from the observer when the light left; 0: infinitely far (a star without parallax)
  double lightTime = 0.0;    // days; 0 for what stands outside the solar system
  double sunDistance = 0.0;  // au from the Sun; 0 for the Sun and for what stands outside the solar system
  double phaseAngle = 0.0;   // radians, Sun - body - observer, 0 to pi
  double elongation = 0.0;   // radians from the Sun's direction, 0 to pi
  double magnitude = kUnknownStarMagnitude;  // visual; kUnknownStarMagnitude where the model has none
  double angularRadius = 0.0;                // radians; 0: unknown or a point
};

// A moment, an observer, and a few objects that the application is busy with: the aim object, the one the view is
// centred on; the locate object, the one searched for; additional objects; one object whose orbit is integrated
// numerically. An application may put its own class in its place: the virtual operations are those that the
// application's library calls, in this slot order.
//
// `data` of every operation is the converted record of the object's kind (object_records.h), which is copied; null for
// "plnt" and "moon", and for an object that was given before.
class ASTRO_API CQXSolSys {
 public:
  CQXSolSys();
  virtual ~CQXSolSys();
  CQXSolSys(const CQXSolSys&) = delete;
  CQXSolSys& operator=(const CQXSolSys&) = delete;

  // False, and nothing changes, when the object is of no kind that the model knows or its record is missing or unusable
  // (numbers that are not finite, a pericentre at 0 or below, a negative eccentricity, elements that SGP4 refuses).
  virtual bool SetAimObject(const SSO_ID& id, const void* data);
  virtual bool SetLocateObject(const SSO_ID& id, const void* data);
  // Adds the object, or replaces its record when it was there.
  virtual bool SetAdditionalObject(const SSO_ID& id, const void* data);
  // Starts the numerical integration at the epoch of the elements, about the Sun, perturbed by the planets and the Moon.
  virtual bool InitIntegr(const SSO_ID& id, const void* data);

  // The gravitational parameter of a central body ("plnt", "moon" 301), au^3 / day^2; 0 for one that is not known.
  virtual double GetGravity(const SSO_ID& body) const;

  // The moment for everything below: Julian date in dynamical time (TT), and TT - UT1 in seconds (ET_UT::Get).
  void SetMoment(double julianDateTT, double deltaT);

  // The observer: on the Earth's surface at a geodetic place (WGS 84; radians, east and north positive; metres), or at
  // the Earth's centre, as it is after construction.
  void SetObserverOnEarth(double lon, double lat, double height);
  void SetObserverAtEarthCentre();

  // How the observer sees a body now. False, and the result untouched, when the body is not known, its record is missing
  // or unusable, or it does not exist at that moment (a satellite that has decayed; the series' range is left).
  bool Observe(const SSO_ID& id, const void* data, ObservedBody& result) const;
  bool ObserveAimObject(ObservedBody& result) const;
  bool ObserveLocateObject(ObservedBody& result) const;
  bool ObserveAdditionalObject(const SSO_ID& id, ObservedBody& result) const;
  bool ObserveIntegrated(ObservedBody& result);  // integrates to the moment first; false when that fails

  // Where a body is at the moment itself, without light time: position (au) and velocity (au/day) relative to the Sun,
  // J2000 equatorial axes. Bodies of the solar system only.
  bool GetHeliocentricState(const SSO_ID& id, const void* data, double position[3], double velocity[3]) const;

  void ClearAdditionalObjects();

 private:
  struct Inside;
  Inside* m_Inside;  // owned
};
