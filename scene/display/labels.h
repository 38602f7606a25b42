// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/display/sky_colours.h"
#include "scene/display_list.h"
#include "scene/text_extents.h"
#include "utils/geometry.h"

namespace scene {

enum class LabelKind {
  kStarName,
  kStarLetter,
  kGalaxy,
  kCluster,
  kNebula,
  kOtherDeepsky,
  kConstellation,
  kCompass,
  kCompassBetween,
  kCaption,
  kMarker,
  kImageFrame,
  kRadiant,
  kPlanet,     // the Sun and the Moon too
  kSmallBody,  // asteroid or comet
  kSatellite,
  kPassTime,  // along the path of a satellite
  kEquatorialGrid,
  kJ2000Grid,
  kEclipticGrid,
  kGalacticGrid,
  kHorizontalGrid
};

LabelKind LabelKindOfDeepsky(int kind);  // by four-character code

// A text in the picture: a point of its baseline, pixels, y up.
struct Label {
  const char* text;  // belongs to whoever placed it; valid as long as the frame
  tPoint<double> place;
  double anchor;  // which part of the text's width lies left of the point: 0, 0.5 or 1
  double size;    // font size, pixels
  LabelKind kind;
  ObjectRef object;  // which it names
};

// Places labels so that they cover neither each other nor what was reserved. Allocates at its construction
// only.
class LabelPlacer {
 public:
  LabelPlacer();
  // Who tells how wide texts are; kept by reference. An estimate until then.
  void SetExtents(const TextExtents& extents) { m_Extents = &extents; }
  void Begin(int width, int height);

  // Nothing will be placed over this box around a point.
  void Reserve(const tPoint<double>& centre, double halfWidth, double halfHeight);

  // Puts the text beside a disc of that radius: right of it, left, above or below, wherever it fits first.
  // Returns the index of the label, or -1 when there is no room inside the window or kMaxLabels stand
  // already.
  int PlaceBeside(const char* text, const tPoint<double>& p, double radius, double size, LabelKind kind,
                  ObjectRef object = {});
  // Centres the text on a point; otherwise the same.
  int PlaceCentred(const char* text, const tPoint<double>& p, double size, LabelKind kind,
                   ObjectRef object = {});
  // Centres the text on a point or near it, wherever it fits first: around the point in that many rings, each
  // about a line of text farther away.
  int PlaceNear(const char* text, const tPoint<double>& p, double size, LabelKind kind, ObjectRef object,
                int rings);
  // Puts the text inside the window at the point of its edge where a line leaves it, above the line at the
  // left and the right edge, right of it at the others. At a point inside: as PlaceCentred.
  int PlaceAtEdge(const char* text, const tPoint<double>& p, double size, LabelKind kind);
  // Puts the text with its baseline beginning at a point whatever is there, and keeps others away.
  void PlaceAt(const char* text, const tPoint<double>& p, double size, LabelKind kind);

  // The index of the first label of that kind with that text, -1 when there is none.
  int Find(const char* text, LabelKind kind) const;

  const std::vector<Label>& GetLabels() const { return m_Labels; }
  // `strength`: what the sky leaves of the names of constellations, 0 to 1.
  void Draw(double strength, const SkyColours& sky, DisplayList& list) const;

  static constexpr int kMaxLabels = 600;
  static constexpr int kMaxBoxes = 2000;  // labels and reserved places; a later place is not kept free

 private:
  struct Box {
    double left, bottom, right, top;
  };
  static Box BoxAt(double left, double baseline, double width, double size);
  bool IsFree(const Box& box) const;
  int Add(const char* text, const Box& box, double anchor, double baseline, double size, LabelKind kind,
          ObjectRef object);

  TextExtents m_Estimate;
  const TextExtents* m_Extents = &m_Estimate;
  double m_Width = 0.0, m_Height = 0.0;
  std::vector<Label> m_Labels;
  std::vector<Box> m_Boxes;
};

}  // namespace scene
