// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"
#include "scene/search/object_search.h"
#include "scene/view/earth_observer.h"

namespace scene {

// One object of any kind as an observer on the Earth sees it at any moment. Its record goes to a model of its
// own.
class SCENE_API ObjectSight {
 public:
  // The catalogs' tables change their current record; nothing of them is kept.
  ObjectSight(const FoundObject& object, SkyCatalogs& catalogs);

  // The place of a feature is that on the surface of its body, also on the far side; distance, magnitude,
  // size and phase are the body's.
  //
  // False when the model knows neither the object nor its record, or cannot tell where it is then.
  bool Observe(const SkyMoment& moment, const EarthPlace& place, ObservedBody& seen);

 private:
  void SetDirection(const Direction& direction);

  CQXSolSys m_Model;
  SSO_ID m_Body;  // of the feature
  std::optional<SurfaceFeature> m_Feature;
};

}  // namespace scene
