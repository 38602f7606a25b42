// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "scene/display/deepsky_symbols.h"
#include "scene/display/dot.h"
#include "scene/display/palette.h"
#include "scene/display/symbol_colour.h"
#include "scene/frame/sky_objects.h"
#include "utils/text.h"

namespace scene {
namespace {

void DrawStar(const DrawnStar& drawn, DisplayList& list) {
  const auto& place = drawn.output->m_Place;
  const Colour& colour = palette::kStars[std::min<unsigned>(drawn.spectrum, palette::kSpectralClasses)];
  const double opacity = drawn.opacity;
  PointRecord point = {};
  point.x = place.x;
  point.y = static_cast<float>(list.GetHeight()) - place.y;
  const PaintedDot dot = PaintedDot::Fit(place.radius);
  point.radius = dot.radius;
  point.colour = ToRgba(colour, opacity * dot.opacity);
  if (PaintedDot::Shines(place.radius, list.GetUnit())) {
    point.glow = {0.0f, 3.6f * place.radius, 0.35f, ToRgba(colour, 0.55 * opacity),
                  ToRgba(colour, 0.20 * opacity)};
  }
  point.object = {FourCC("star"), drawn.number};
  list.Add(Layer::kStars, point);
}

// Boxes of objects whose position angle is unknown stand upright.
float GetAngle(DeepskySign sign, const DrawnDeepsky& drawn, const DeepskyObject& object) {
  return sign != DeepskySign::kGalaxy && std::isnan(object.positionAngle) ? 0.0f : drawn.angle;
}

DeepskySymbol MakeSymbol(const DrawnDeepsky& drawn, const DeepskyObject& object, double strength,
                         const DisplayList& list) {
  const auto& output = *drawn.output;
  const DeepskySign sign = FindDeepskySign(object.kind, object.number);
  const Colour& colour = GetSymbolColour(LabelKindOfDeepsky(object.kind));
  return {sign,
          output.m_Place.x,
          static_cast<float>(list.GetHeight()) - output.m_Place.y,
          0.5f * output.m_MajorSize,
          0.5f * output.m_MinorSize,
          GetAngle(sign, drawn, object),
          1.1f * list.GetUnit(),
          ToRgba(colour, strength * static_cast<double>(drawn.opacity)),
          {object.kind, object.number}};
}

}  // namespace

void SkyObjects::DrawDeepsky(const NebulaClouds& clouds, double strength, DisplayList& list) const {
  for (const auto add : {AddSymbolRings, AddSymbolLines}) {
    for (const auto& drawn : m_Deepsky) {
      const DeepskyObject& object = m_Catalogs.deepsky[static_cast<std::size_t>(drawn.object)];
      const bool isNebula = LabelKindOfDeepsky(object.kind) == LabelKind::kNebula;
      if (!isNebula || !clouds.IsFormed(drawn.object)) add(MakeSymbol(drawn, object, strength, list), list);
    }
  }
}

void SkyObjects::DrawStars(DisplayList& list) const {
  for (auto drawn = m_Stars.rbegin(); drawn != m_Stars.rend(); ++drawn) DrawStar(*drawn, list);
}

}  // namespace scene
