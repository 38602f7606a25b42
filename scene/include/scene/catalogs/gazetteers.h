// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "astro/object_id.h"
#include "scene/api.h"

namespace scene {

// A named place on the surface of a body: a crater, a mountain.
struct SurfaceFeature {
  std::string name;  // "Tycho"
  std::string type;  // "Crater", as the gazetteer has it
  // Of its middle, radians: planetocentric, longitude eastwards, -pi to pi.
  double latitude, longitude;
  double diameter;  // its largest extent, km; 0: unknown
  // It is worth naming where so many km are a pixel of a picture of 1600 x 1000.
  double prominence;
  int number;         // in lists, whatever else the gazetteer holds: the name id of "moon Tycho"
  double surface[3];  // of the middle, km on the body's axes (astro/rotation.h), height 0
};

// The names on the surfaces of bodies, "gazetteers/moon_features.txt" (docs/formats/gazetteers.md). A body's
// are read when they are first asked for. One thread.
//
// A feature has one index for all bodies, which holds as long as the data root does not change.
class SCENE_API Gazetteers {
 public:
  // The bodies that may have one, the Moon first.
  static const std::vector<SSO_ID>& GetBodies();
  // The name of a gazetteer's body, "moon"; null for a body that has none.
  static const char* FindName(const SSO_ID& body);

  // Of a body, the most prominent first; empty for one without a gazetteer.
  const std::vector<SurfaceFeature>& Get(const SSO_ID& body) const;

  static int MakeIndex(const SSO_ID& body, int feature);
  static SSO_ID GetBody(int index);
  const SurfaceFeature& GetFeature(int index) const;

 private:
  mutable std::vector<std::shared_ptr<const std::vector<SurfaceFeature>>> m_Features;  // by body
};

}  // namespace scene
