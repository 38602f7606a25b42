// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "scene/view/directions.h"

namespace skydata {

// The stars of catalogs that are drawn already, against which another catalog is held so that no star is
// drawn twice. Places of the other catalog may be of any epoch from 1991.25, that of the Hipparcos and Tycho
// observations, to 2000.0: a known star is looked for along the way that it has gone meanwhile.
//
// A star of the other catalog is a known one when it stands within 4" of it, whatever its magnitude: it may
// vary, and catalogs give for close pairs one star of the joint light. Places may also be bad, or that of the
// other component; so it is one, too, when it stands within 30" of a known star of its magnitude, to 0.7,
// that has nothing nearer in the other catalog. To know that, the other catalog is gone through twice:
// NoteNear for each of its stars, then Has.
class KnownStars {
 public:
  static constexpr double kNear = 4.0, kFar = 30.0;  // arc seconds
  static constexpr double kSameMagnitude = 0.7;

  // The direction of J2000.0 and its change a year. isPaired: its counterpart in the other catalog is known
  // by other means.
  void Add(const scene::Direction& direction, const scene::Direction& motion, double magnitude,
           bool isPaired);

  // After the last Add, once.
  void Sort();

  void NoteNear(const scene::Direction& direction);
  bool Has(const scene::Direction& direction, double magnitude) const;

 private:
  struct Star {
    scene::Direction direction;
    scene::Direction way;  // from there to where it stood in 1991.25
    double magnitude;
    bool isPaired;
  };
  // A star stands in every cell of a grid that a place within reach of it may have.
  struct Entry {
    std::uint32_t cell, star;
  };

  static double GetDistance(const Star& star, const scene::Direction& direction);
  template <class Visit>
  void VisitWithin(const scene::Direction& direction, Visit&& visit) const;

  std::vector<Star> m_Stars;
  std::vector<Entry> m_Entries;
};

}  // namespace skydata
