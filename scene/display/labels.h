// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "scene/display/display_list.h"
#include "scene/display/sky_colours.h"
#include "scene/display/text_extents.h"
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
  kAsterism,
  kCompass,
  kCompassBetween,
  kCaption,
  kMarker,
  kImageFrame,
  kRadiant,
  kPlanet,     // the Sun and the Moon too
  kSmallBody,  // asteroid or comet
  kSatellite,
  kCrater,    // on the disc of a body
  kRegion,    // other features there
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
//
// From frame to frame the label of an object that moved a little keeps its side of the object as long as
// there is room, and goes out of the window with it; one that was not there comes when there is a little more
// room than it takes. One that had to go stays away until its object has moved on. So nothing flickers while
// the view turns. A frame after nothing, or after one that looked elsewhere, is placed by what is in it
// alone.
class LabelPlacer {
 public:
  LabelPlacer();
  // Who tells how wide texts are; kept by reference. An estimate until then.
  void SetExtents(const TextExtents& extents) {
    m_Extents = &extents;
    m_Kept.clear();
  }
  // `centre` and `scale` tell the view: the direction of its middle on axes among the stars, and how many
  // pixels two radians are there.
  void Begin(int width, int height, const Direction& centre = {}, double scale = 0.0);

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

  // How wide an upright text is, pixels.
  double GetWidth(const char* text, double size) const { return m_Extents->GetWidth(text, size, 0); }

  // Labels of which `isHidden` says so are not drawn; their places stay taken.
  template <class Test>
  void Hide(const Test& isHidden) {
    for (Label& label : m_Labels) {
      if (isHidden(label)) label.text = "";
    }
  }

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
  // A place that a label may take.
  struct Slot {
    double left, baseline, anchor;
  };
  // What stays of the label of an object until the next frame.
  struct Kept {
    ObjectRef object;
    LabelKind kind;
    int slot;              // kLost: it had to go
    tPoint<double> point;  // which it was placed at, or lost its place at
  };
  static constexpr int kLost = -1;
  // One label of an object: what is to be placed, and at which point.
  struct Wanted {
    const char* text;
    tPoint<double> point;
    double size;
    LabelKind kind;
    ObjectRef object;
    double width;
  };
  static Box BoxAt(double left, double baseline, double width, double size);
  static bool Precedes(const Kept& a, const Kept& b);
  bool IsInWindow(const Box& box) const;
  bool IsFree(const Box& box) const;
  const Kept* FindKept(const Wanted& label) const;
  bool CanPlace(const char* text) const { return *text && static_cast<int>(m_Labels.size()) < kMaxLabels; }
  // In the slot that it had, else in the first free one of the first `count`.
  int PlaceInFirst(const Wanted& label, std::span<const Slot> slots, std::size_t count);
  int Add(const Wanted& label, const Slot& slot);

  TextExtents m_Estimate;
  const TextExtents* m_Extents = &m_Estimate;
  double m_Width = 0.0, m_Height = 0.0;
  Direction m_Centre{};  // of the view, and its scale
  double m_Scale = 0.0;
  std::vector<Label> m_Labels;
  std::vector<Box> m_Boxes;
  std::vector<Kept> m_Kept, m_Before;  // of this frame; of the one before, by object
};

}  // namespace scene
