// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Shadows of the Earth on the Moon and of the Moon on the Earth.
#pragma once

#include "astro/eclipse.h"
#include "common_interfaces/object_shadow_map.h"
#include "scene/api.h"
#include "scene/bodies/body_model.h"

namespace scene {

using astro::LunarEclipse;
using astro::SolarEclipse;

// Fills the shadow lists of the Moon and the Earth for each frame. The lists are made once and stay in the
// map, empty while no shadow falls; a frame allocates nothing.
class SCENE_API EclipseShadows {
 public:
  EclipseShadows();

  // `model` was computed for the moment.
  void Compute(const BodyModel& model);

  CommonInterfaces::ObjectShadowMap& GetMap() { return m_Map; }
  // The Earth's shadow on the Moon; null while there is none.
  const CommonInterfaces::QX_ShadowParams* GetMoonShadow() const { return m_OnMoon; }

  LunarEclipse GetLunarEclipse() const { return m_Lunar.kind; }
  // The part of the Moon's diameter inside the umbra (negative: how far it is away from it), and inside the
  // penumbra.
  double GetUmbralMagnitude() const { return m_Lunar.umbralMagnitude; }
  double GetPenumbralMagnitude() const { return m_Lunar.penumbralMagnitude; }

  SolarEclipse GetSolarEclipse() const { return m_Solar.kind; }
  // The part of the Sun's diameter that the Moon covers, seen from the place; above 1 while it is total.
  double GetSolarMagnitude() const { return m_Solar.magnitude; }
  // The part of the area of the Sun's disc that the Moon covers, seen from the place, 0 to 1.
  double GetSolarObscuration() const { return m_Solar.obscuration; }

 private:
  CommonInterfaces::ObjectShadowMap m_Map;
  const CommonInterfaces::QX_ShadowParams* m_OnMoon = nullptr;
  astro::LunarEclipseState m_Lunar;
  astro::SolarEclipseState m_Solar;
};

}  // namespace scene
