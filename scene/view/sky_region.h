// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "scene/view/sky_cap.h"
#include "scene/view/view_geometry.h"

namespace scene {

// The picture of a region of the sphere bounded by closed rings, to be filled by the even-odd rule.
//
// A stereographic picture is a plane without edge: everything around the point opposite to the view lies far
// outside, and a ring near it has points of any size. The picture is therefore drawn inside a disc around the
// window: what lies beyond its rim is moved onto the rim, along which the outline then runs. Rings that
// surround the window keep doing so. Where the region holds the opposite point itself, the plane outside the
// rim belongs to it.
struct RegionPicture {
  std::vector<tPoint<double>> points;  // pixels, y up
  std::vector<int> ringEnds;           // index behind the last point of each ring
  bool holdsOutside = false;           // the plane beyond the rim is inside the region
  double rim = 0.0;                    // radius of the disc, pixels around the centre of the window

  void Clear();
  // Makes room for rings of so many points in all.
  void Reserve(std::size_t rings, std::size_t ringPoints);
};

// Adds rings to a picture. `outside` is any direction known to be outside the region, in the same frame; it
// must not lie on an outline. Neighbouring points of a ring are at most a few degrees apart and the last
// point is joined to the first. Allocates nothing once the picture's vectors have grown.
class RegionProjector {
 public:
  RegionProjector(const ViewGeometry& geometry, SkyFrameOf frame, const Direction& outside,
                  RegionPicture& picture);
  // With the caps of the ring (AppendCaps), what lies outside is passed over stretch by stretch; the picture
  // is the same.
  void AddRing(std::span<const Direction> ring, std::span<const SkyCap> caps = {});

  static constexpr std::size_t kStretch = 32;  // points
  // Appends the caps around the stretches of a ring: kStretch points and the one before them, the last fewer.
  static void AppendCaps(std::span<const Direction> ring, std::vector<SkyCap>& caps);

 private:
  // An end of an edge.
  struct End {
    const Direction* direction;
    tPoint<double> place;  // pixels from the centre of the window
    bool inDisc;
    bool side;  // of the great circle of m_PathNormal
  };

  End MakeEnd(const Direction& direction, const tPoint<double>& pixel) const;
  tPoint<double> FromCentre(const tPoint<double>& pixel) const;
  bool IsInDisc(const tPoint<double>& p) const;
  bool IsBehind(const End& end) const { return Dot(m_Axis, *end.direction) < 0.0; }
  bool IsNearLast(const tPoint<double>& p) const;
  // Whether the bearing of `p` lies within an angle of that tangent from that of the last point.
  bool IsWithin(const tPoint<double>& p, double tangent) const;
  bool IsUneventful(const SkyCap& cap) const;
  void AddStretch(std::span<const Direction> stretch, End& last);
  void AddEdge(const End& from, const End& to);
  bool CrossesPath(const Direction& a, const Direction& b) const;
  void LineTo(const tPoint<double>& p);
  void AlongRim(const tPoint<double>& p, int turn, bool exact = false);
  int TurnOf(const Direction& a, const Direction& b) const;

  const ViewGeometry& m_Geometry;
  SkyFrameOf m_Frame;
  RegionPicture& m_Picture;
  Direction m_Axis;  // of the view, in the frame of the rings
  Direction m_Outside;
  Direction m_Opposite;
  Direction m_PathNormal;  // of the great circle from m_Opposite to m_Outside
  double m_PathNormalLength;
  double m_RimSine, m_RimCosine;  // of the angle from the view axis to the rim
  Direction m_PathMiddle;         // the middle of that arc, of any length; zero when there is no arc
  tPoint<double> m_Last{};        // the last point added, pixels from the centre of the window
};

}  // namespace scene
