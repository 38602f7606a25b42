// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pictures laid onto the sky: where each constellation figure, piece of the Milky Way and photograph of a
// deep-sky object belongs. Each catalog is loaded once and shared by every instance in the process; the
// shared lists have no lock, so instances are made, used and destroyed on one thread. Files and what damage
// does to them: docs/formats/sky_images.md.
#pragma once

#include <cstddef>
#include <vector>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// Where a corner of a picture stands on the sky.
struct SkyImageCorner {
  float ra = 0.0f, dec = 0.0f;  // radians, J2000
};

// A picture given by its corners. `id` holds the four bytes of the file as they stand there, in memory order:
// those of the shipped pictures are letters, "Ori " and "MW01".
struct CSTLImageDesc {
  unsigned id = 0;
  SkyImageCorner corners[4];
};
static_assert(sizeof(CSTLImageDesc) == 36 && offsetof(CSTLImageDesc, corners) == 4);

// A picture of the Milky Way, given by its corners.
struct MWayImageDesc {
  unsigned id = 0;
  SkyImageCorner corners[4];
};
static_assert(sizeof(MWayImageDesc) == 36 && offsetof(MWayImageDesc, corners) == 4);

// The constellation images, "media:skyobjects:constell_images:constell.dat". The first instance loads them,
// the last one frees them. A file that is not there leaves no list, one that cannot be opened an empty list,
// a shorter one than its count says the images that are whole; nothing is printed.
class COMMON_INTERFACES_API CSTLImages {
 public:
  using Iterator = std::vector<CSTLImageDesc*>::const_iterator;

  CSTLImages();
  ~CSTLImages();
  CSTLImages(const CSTLImages&);
  CSTLImages& operator=(const CSTLImages&) = default;

  // The images in the order of the file; equal when there is no list. Valid while an instance lives.
  Iterator GetBegin() const;
  Iterator GetEnd() const;
};

// The Milky Way images, "media:skyobjects:mway_images:mway.dat"; otherwise as CSTLImages.
class COMMON_INTERFACES_API MWayImages {
 public:
  using Iterator = std::vector<MWayImageDesc*>::const_iterator;

  MWayImages();
  ~MWayImages();
  MWayImages(const MWayImages&);
  MWayImages& operator=(const MWayImages&) = default;

  Iterator GetBegin() const;
  Iterator GetEnd() const;
};

// The photograph of a deep-sky object. The columns of its line that are not converted stand as they are in
// the file.
struct DSOImageDesc {
  static constexpr int kIndependent = 2;  // flag: drawn without its object too
  static constexpr unsigned short kNoPositionAngle = 0xFFFF;

  // The low 24 bits of the object's number; bits 28 to 30: its letter, 1 for A to 7 for G, 0 without one.
  unsigned number = 0;
  float size = 0.0f;            // half the width, radians: the extent along the first axis of CalcCorners
  float reciprocalSize = 0.0f;  // 1 / size; 0 for a size of 0
  double direction[3] = {1.0, 0.0, 0.0};  // centre: unit vector, J2000 equatorial axes
  double rotation = 0.0;      // degrees: the angle of CalcCorners; that of a width at position angle p is -p
  int flags = 0;              // a combination of 1 (free for the drawing side) and kIndependent
  double aspectRatio = 1.0;   // r: width over height; half the height is size / r
  int layer = 0;              // pictures of a lower layer are drawn first
  double blackPoint = 0.0;    // brightness of the picture that becomes the black of the sky, 0 to 1
  double brightness = 1.0;    // factor on what is brighter
  double halfDiagonal = 0.0;  // d = size * sqrt(1 + 1 / r^2), radians
  double cosHalfDiagonal = 1.0;  // a direction whose cosine to the centre is smaller is outside the picture
  // What AddData stores about the object.
  float magnitude = 9999.0f;                        // visual; 9999: not known
  float largestDimension = -1.0f;                   // radians; -1: not known
  float smallestDimension = -1.0f;                  // radians; -1: not known
  unsigned short positionAngle = kNoPositionAngle;  // degrees, north over east
};

// The deep-sky images, "media:skyobjects:dso_images:dsoimagestrue.txt". The first instance loads them, the
// last one frees them. They are sorted by the low 24 bits of the number, then by letter; of two lines with
// the same number and letter the first is kept.
class COMMON_INTERFACES_API DSOImages {
 public:
  DSOImages();
  ~DSOImages();
  DSOImages(const DSOImages&);
  DSOImages& operator=(const DSOImages&) = default;

  // Empties the catalog and reads the file again. Prints "File %s not found\n" with the logical path when it
  // is not there; the catalog is then empty. Every DSOImageDesc* handed out before is invalid, the walk of
  // GetFirst has ended and there is no current picture.
  static void Reload();

  // Walk through the catalog in its order; null at its end, and from then on. GetNext without GetFirst gives
  // null. What they give becomes the current picture. The pictures belong to the catalog.
  const DSOImageDesc* GetFirst();
  const DSOImageDesc* GetNext();

  // The picture of the object with this number: bits 0 to 23, and the letter in bits 28 to 30. Where that
  // letter has no picture the one without a letter is found, else that with the lowest: so an object is found
  // by its own number, whose top byte is the sub-type (deepsky.txt). The kind does not matter, deliberately:
  // the numbers tell deep-sky objects of all kinds apart. A hit becomes the current picture; the walk goes on
  // where it was. Null when there is none, and the current picture stays.
  const DSOImageDesc* Find(int kind, int number);

  // Stores what the caller knows of the object in the current picture, until the catalog is read again. The
  // order is deliberate: the first argument goes to the second field. Without a current picture nothing
  // happens.
  void AddData(float largestDimension, float magnitude, float smallestDimension,
               unsigned short positionAngle);

  // The directions of a picture's corners: four unit vectors, 12 doubles. `center` is a unit vector; the half
  // extents are lengths on the plane that touches the sphere there, in units of its radius (radians while
  // they are small). With angle 0 the first axis u, that of halfWidth, points north and the second, v, east;
  // a growing angle (radians) turns u towards west. Corners: -w u - h v, -w u + h v, +w u + h v, +w u - h v.
  // At a pole, where there is no north, u is that of a centre which comes to the pole along the meridian of
  // right ascension 0. Any thread.
  static void CalcCorners(const double* center, float angle, float halfWidth, float halfHeight,
                          double* corners);

  // corner k = normalise(center + offset k), k = 0 to 3, three doubles each. Any thread.
  static void CalcCornersFromOffsets(const double* center, const double* offsets, double* corners);

  // Copies of the pictures whose flag kIndependent is set, in the order of the file, as they were read.
  // Filled by Reload and by the first instance, emptied by the last.
  static std::vector<DSOImageDesc> s_IndependentImages;
};

}  // namespace CommonInterfaces
