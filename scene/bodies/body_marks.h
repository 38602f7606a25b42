// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scene/bodies/body_globes.h"
#include "scene/bodies/body_tests.h"
#include "scene/bodies/eclipse.h"
#include "scene/bodies/globe_lines.h"
#include "scene/display/labels.h"
#include "scene/display/sky_colours.h"

namespace scene {

// A body of the frame and how it is drawn. Pixels, y up.
struct DrawnBody {
  int body;  // index in the list of bodies
  tPoint<double> place;
  double radius;
  bool asDisc;                 // drawn at its true size, or with a phase as the Sun and the Moon always are
  float opacity;               // 0 to 1
  double cosPhase;             // cosine of the phase angle: 1 wholly lit, -1 wholly dark
  tPoint<double> toSun;        // unit vector from the middle of the disc to that of its bright limb
  double distance;             // au
  int labelIndex;              // -1: none
  std::optional<Globe> globe;  // its surface, where it is drawn as a disc and known
  GlobeLines lines;            // on it
};

// The Earth's shadow on the Moon's disc, or that of a moon on its planet's. Pixels, y up.
struct DrawnShadow {
  int body = -1;  // on whose disc it falls
  tPoint<double> centre{};
  double umbra = 0.0, penumbra = 0.0;  // radii; the umbra's is 0 when it does not reach so far
};

// The bodies of one frame. The lists have room for all from the start; nothing is allocated later.
class BodyMarks {
 public:
  explicit BodyMarks(const BodyModel& model);

  // Takes the names of the planets from the string table. To be called when the language has changed.
  void FetchTexts();

  void Compute(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown,
               const EclipseShadows& shadows);
  // Keeps the labels that come later off the bodies.
  void KeepClear(LabelPlacer& labels) const;
  // Labels what Compute has found, and puts the farthest first.
  void PlaceLabels(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown,
                   LabelPlacer& labels);

  void Clear();

  // The farthest body first: discs with their phase, dots, comets with a tail away from the Sun. Air shines
  // before the night side of a body as it does beside it.
  void Draw(const SkyColours& sky, DisplayList& list) const;

  const std::vector<DrawnBody>& GetDrawn() const { return m_Drawn; }  // the farthest first
  const DrawnBody* Find(int body) const;                              // null when it is not drawn
  const BodyGlobes& GetGlobes() const { return m_Globes; }
  const std::vector<DrawnShadow>& GetShadows() const { return m_Shadows; }
  // The name, or of a satellite its number where numbers are wanted.
  const std::string& GetLabel(int body, const ShownKinds& shown) const;

 private:
  void Add(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown, int body,
           const ObjectPlace& place);
  void AddEarthShadow(const ViewGeometry& geometry, const EclipseShadows& shadows);
  void AddMoonShadows(const ViewGeometry& geometry);

  const BodyModel& m_Model;
  BodyGlobes m_Globes;
  std::vector<std::string> m_Labels, m_Numbers;  // of each body; the numbers of satellites
  std::vector<DrawnBody> m_Drawn;
  std::vector<DrawnShadow> m_Shadows;
};

}  // namespace scene
