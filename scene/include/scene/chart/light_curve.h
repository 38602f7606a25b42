// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Light curves of the variable stars that the library models.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "utils/geometry.h"

namespace scene {

// A star with a light curve. Static data.
struct VariableStar {
  unsigned id;         // of the models (variable_stars.h)
  const char* name;    // "Algol"
  const char* others;  // further names, with commas between: "beta Persei, bet Per"
  bool isUserStar;     // GetVarUserStarMagnitude knows it, else GetVarStarMagnitude
  double period;       // days; of an outburst that comes once 0
  double first, last;  // Julian dates around the outburst; of what is periodic both 0
};

// The star of an identifier, hexadecimal with "0x" or decimal, or of a name: upper and lower case, accents,
// blanks and Greek letters as in ObjectSearch. Null for one without a model.
SCENE_API const VariableStar* FindVariableStar(std::string_view text);

// Their names, for messages.
SCENE_API std::vector<std::string> ListVariableStars();

// The magnitudes of one star over a stretch of time.
struct LightCurve {
  std::string title;                       // "Algol (0x48780B23)"
  double first = 0.0, last = 0.0;          // Julian dates
  double brightest = 0.0, faintest = 0.0;  // the ends of the axis, magnitudes
  std::vector<tPoint<double>> points;      // Julian date, magnitude
};

// Two periods around the date, or the outburst; of a recurrent nova the outburst of the cycle that holds the
// date.
SCENE_API LightCurve MakeLightCurve(const VariableStar& star, double julianDate);

// A round step for an axis with at most `count` steps between two values: 1, 2 or 5 times a power of ten.
SCENE_API double ChooseTick(double length, int count);

}  // namespace scene
