// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace scene {

// How the objects of one class are labelled. Only stars have abbreviations and magnitudes beside the name,
// only clusters, galaxies and nebulae numbers of two catalogues.
struct LabelRules {
  bool shown = true;
  bool commonName = false;    // a proper name before any designation
  bool abbreviation = false;  // "α CMa", with the Latin abbreviation of the constellation; else "α"
  bool magnitude = false;     // behind the label
  bool ngcFirst = false;      // "NGC 1976" before "M42"
};

// Of the names of constellations.
enum class NameForm { kLatin, kGenitive, kEnglish, kLocal };

}  // namespace scene
