// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Shadows of the Earth on the Moon and of the Moon on the Earth.
#pragma once

#include "common_interfaces/object_shadow_map.h"
#include "scene/api.h"
#include "scene/body_model.h"

namespace scene {

enum class LunarEclipse { kNone, kPenumbral, kPartial, kTotal };
// kElsewhere: not seen from the place.
enum class SolarEclipse { kNone, kElsewhere, kPartial, kAnnular, kTotal };

// Fills the shadow lists of the Moon and the Earth for each frame. The lists are made once and stay in the
// map, empty while no shadow falls; a frame allocates nothing.
//
// The Earth counts as larger by a hundredth for its shadow, as its atmosphere makes it (Danjon 1951; Espenak
// & Meeus 2009, NASA/TP-2009-214173): magnitudes agree with the tables of eclipses to a few thousandths.
class SCENE_API EclipseShadows {
 public:
  EclipseShadows();

  // `model` was computed for the moment.
  void Compute(const BodyModel& model);

  CommonInterfaces::ObjectShadowMap& GetMap() { return m_Map; }
  // The Earth's shadow on the Moon; null while there is none.
  const CommonInterfaces::QX_ShadowParams* GetMoonShadow() const { return m_OnMoon; }

  LunarEclipse GetLunarEclipse() const { return m_Lunar; }
  // The part of the Moon's diameter inside the umbra (negative: how far it is away from it), and inside the
  // penumbra.
  double GetUmbralMagnitude() const { return m_UmbralMagnitude; }
  double GetPenumbralMagnitude() const { return m_PenumbralMagnitude; }

  SolarEclipse GetSolarEclipse() const { return m_Solar; }
  // The part of the Sun's diameter that the Moon covers, seen from the place; above 1 while it is total.
  double GetSolarMagnitude() const { return m_SolarMagnitude; }

 private:
  void ComputeLunar(const BodyModel& model);
  void ComputeSolar(const BodyModel& model);

  CommonInterfaces::ObjectShadowMap m_Map;
  const CommonInterfaces::QX_ShadowParams* m_OnMoon = nullptr;
  LunarEclipse m_Lunar = LunarEclipse::kNone;
  SolarEclipse m_Solar = SolarEclipse::kNone;
  double m_UmbralMagnitude = 0.0, m_PenumbralMagnitude = 0.0, m_SolarMagnitude = 0.0;
};

}  // namespace scene
