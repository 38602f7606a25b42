// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/api.h"

namespace CommonInterfaces {

// One shadow cast onto an object, as the drawing side shades it. A plain record.
struct QX_ShadowParams {
  SSO_ID m_Caster;   // the body that casts the shadow
  double m_Axis[3];  // direction of the shadow's axis, away from the light: unit vector, J2000 axes
  double m_Foot[3];  // where the axis passes closest to the object's centre, relative to it: au, J2000 axes
  double m_UmbraRadius;     // au, at the foot; negative beyond the umbra's tip, where the eclipse is annular
  double m_PenumbraRadius;  // au, at the foot
};

// The shadows of one frame by the object they fall on. The map owns the lists it holds. One thread.
class COMMON_INTERFACES_API ObjectShadowMap {
 public:
  ObjectShadowMap() = default;
  virtual ~ObjectShadowMap();
  ObjectShadowMap(const ObjectShadowMap&) = delete;
  ObjectShadowMap& operator=(const ObjectShadowMap&) = delete;

  // The list of the object, null when there is none. It stays the map's, until ClearAll.
  std::vector<QX_ShadowParams>* FindList(SSO_ID id);

  // Hands a list made with `new` over to the map. When the object has a list already nothing happens at all:
  // the first list stays as it is and the new one stays the caller's; so does one that there is no memory for
  // (std::bad_alloc). A null list takes the place too.
  void AddList(SSO_ID id, std::vector<QX_ShadowParams>* list);

  // Deletes every list and empties the map.
  void ClearAll();

 private:
  std::map<SSO_ID, std::vector<QX_ShadowParams>*> m_Lists;
};

}  // namespace CommonInterfaces
