// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/caption_block.h"

#include "scene/display/falling_gradient.h"
#include "scene/display/palette.h"

namespace scene {
namespace {

constexpr double kFade = 48.0;  // pixels of the standard picture above the text

}  // namespace

void CaptionBlock::Place(const ViewGeometry& geometry, LabelPlacer& labels) const {
  const double unit = geometry.unit;
  // Its lines end where they end; what stands beside them on the dark ground, or where that begins, reads as
  // a part of them.
  const double halfWidth = 0.5 * geometry.width, halfHeight = 0.5 * (GetHeight(unit) + 0.6 * kFade * unit);
  if (!m_Lines.empty()) labels.Reserve({halfWidth, halfHeight}, halfWidth, halfHeight);
  double baseline = 1.1 * kCaptionFont * unit;
  for (auto line = m_Lines.rbegin(); line != m_Lines.rend(); ++line) {
    labels.PlaceAt(line->c_str(), {kCaptionLeft * unit, baseline}, kCaptionFont * unit, LabelKind::kCaption);
    baseline += kCaptionLineStep * unit;
  }
}

void CaptionBlock::DrawGround(DisplayList& list) const {
  if (m_Lines.empty()) return;
  const double text = GetLineCount() * kCaptionLineStep;
  const float top =
      static_cast<float>(list.GetHeight() - (text + kFade) * static_cast<double>(list.GetUnit()));
  const Colour& colour = palette::kCaptionGround;
  AddFallingGradient(Layer::kCaptionGround, top, static_cast<float>(kFade / (text + kFade)),
                     ToRgba(colour, 0.0), ToRgba(colour, 0.6), ToRgba(colour, 0.8), list);
}

}  // namespace scene
