// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

#include "common_interfaces/camera.h"
#include "utils/text.h"

namespace scene {

// The three limits of a class of objects at the camera's zoom, magnitude codes: (magnitude + 2) * 10.
struct ClassLimits {
  explicit ClassLimits(const CommonInterfaces::Camera& camera, int cls)
      : draw(FindDraw(camera, cls)),
        full(camera.GetDarkMagObjectF(cls)),
        label(camera.GetDarkMagLabelF(cls)) {}

  // How bright an object of this code is drawn: 1 up to the full limit, falling to a faint dot at the draw
  // limit.
  float Opacity(float code) const {
    constexpr float kFaintest = 0.3f;
    if (code <= full || draw <= full) return 1.0f;
    return 1.0f - (1.0f - kFaintest) * (code - full) / (draw - full);
  }

  // The limits where every object of the class looks fainter by so many codes. Names help to read: they go as
  // far as objects are drawn.
  ClassLimits Dimmed(float codes) const {
    ClassLimits limits = *this;
    limits.draw -= codes;
    limits.full -= codes;
    limits.label = std::min(limits.label, limits.draw);
    return limits;
  }

  float draw;   // objects up to this code are drawn,
  float full;   // up to this one at full brightness,
  float label;  // and up to this one with their label

 private:
  // As far as the camera goes. Symbols of deep-sky objects stay within three magnitudes of the stars besides,
  // so that a wide view is not full of them, which the correction of the class in the settings shifts.
  static float FindDraw(const CommonInterfaces::Camera& camera, int cls) {
    using CommonInterfaces::Camera;
    constexpr float kBeyondStars = 30.0f;
    const float draw = camera.GetDarkMagDrawF(cls);
    for (const int row : {2, 4, 6, 8}) {  // of the classes in the camera's table
      if (static_cast<int>(Camera::s_ZoomDependDesc[row].objectClass) != cls) continue;
      const float stars = camera.GetDarkMagDrawF(FourCC("star"));
      return std::min(draw, stars + kBeyondStars + camera.GetMagCorrection(row));
    }
    return draw;
  }
};

// The radius of the dot of a star of that code, in pixels of the standard picture, by the limits of stars:
// 0.6 at the limit, growing by a quarter for each magnitude above it. Planets of that magnitude have the
// same.
inline double GetDotRadius(const ClassLimits& stars, float code) {
  constexpr double kGrowth = 0.023025850929940457;  // a hundredth of the logarithm of 10
  return 0.6 * std::exp(kGrowth * static_cast<double>(stars.draw - code));
}

// The magnitude of a code, (magnitude + 2) * 10.
inline double MagnitudeOfCode(double code) { return code * 0.1 - 2.0; }

}  // namespace scene
