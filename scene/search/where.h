// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where one object is, in words: --where.
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "scene/view/earth_observer.h"
#include "scene/search/object_search.h"

namespace skyview {

// One object of any kind as an observer on the Earth sees it at any moment. Its record goes to a model of its own.
class ObjectSight {
 public:
  // The catalogs' tables change their current record; nothing of them is kept.
  ObjectSight(const FoundObject& object, SkyCatalogs& catalogs);

  // False when the model knows neither the object nor its record, or cannot tell where it is then.
  bool Observe(const SkyMoment& moment, const EarthPlace& place, ObservedBody& seen);

 private:
  CQXSolSys m_Model;
};

// The object as lines in the current language, UTF-8: right ascension and declination for J2000 (without aberration)
// and of date (as it is seen), azimuth, altitude without and with refraction, distance in a fitting unit, magnitude,
// size and phase, rise, transit and set of the view's local day in its zone. The next day stands for an event that
// the day lacks; for satellites the next 24 hours from the moment of the view are looked at. `title` names the object.
// False when the observer is not near the Earth's surface or nobody can tell where the object is: `error` is then one
// line.
bool DescribeWhere(const FoundObject& object, const std::string& title, SkyCatalogs& catalogs,
                   const CommonInterfaces::Camera& camera, std::string& text, std::string& error);

// The unit in which a distance (au) is read best: kilometres near the Earth, then thousands of them, astronomical
// units in the solar system, light years, kiloparsecs.
char ChooseUnit(double distance);

}  // namespace skyview
