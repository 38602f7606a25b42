// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"
#include "scene/earth_observer.h"
#include "scene/object_search.h"

namespace scene {

// One object of any kind as an observer on the Earth sees it at any moment. Its record goes to a model of its
// own.
class SCENE_API ObjectSight {
 public:
  // The catalogs' tables change their current record; nothing of them is kept.
  ObjectSight(const FoundObject& object, SkyCatalogs& catalogs);

  // False when the model knows neither the object nor its record, or cannot tell where it is then.
  bool Observe(const SkyMoment& moment, const EarthPlace& place, ObservedBody& seen);

 private:
  CQXSolSys m_Model;
};

}  // namespace scene
