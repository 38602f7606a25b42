// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace scene {

// What filters compare of an object.
struct ObjectTraits {
  static constexpr unsigned char kNoClass = 255;

  float code = 0.0f;             // magnitude code, (magnitude + 2) * 10; not a number when unknown
  float colour = 0.0f;           // colour index B-V, magnitudes; not a number when unknown
  float size = 0.0f;             // largest dimension, radians; not a number when unknown
  unsigned char cls = kNoClass;  // spectral class of a star (GetSpectrType), sub-type of a deep-sky object
  unsigned char catalogs = 0;  // the catalogues that list it, one bit each: StarCatalogBit, DeepskyCatalogBit
  int number = -1;             // its number in lists of favourites; -1 for an object without one
  unsigned char luminosity = kNoClass;  // class of a star, FindLuminosityClass
};

// Bit i answers to element i of the field "CatalogType" of the section. Settings files keep their order:
// frozen.
enum StarCatalogBit : unsigned char {
  kInBrightStars = 1,  // Bright Star Catalogue, HR numbers
  kInHipparcos = 2,
  kInBayer = 4,  // it has a Bayer letter
  kInFlamsteed = 8
};
enum DeepskyCatalogBit : unsigned char { kInMessier = 1, kInNgc = 2, kInIc = 4, kInNoCatalog = 8 };

}  // namespace scene
