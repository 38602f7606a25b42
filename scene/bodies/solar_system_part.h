// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "scene/bodies/body_marks.h"
#include "scene/bodies/body_tests.h"
#include "scene/bodies/eclipse.h"
#include "scene/bodies/orbit_paths.h"
#include "scene/bodies/planet_paths.h"
#include "scene/bodies/satellite_pass.h"
#include "scene/bodies/surface_names.h"

namespace scene {

// What moves among the stars, for one frame: bodies, the shadows between them, orbits, passes of satellites.
// Only for observers near the Earth's surface: elsewhere there is nothing of it. `bodies`, which
// must not grow, and `gazetteers` are kept by reference.
class SolarSystemPart {
 public:
  SolarSystemPart(const BodyList& bodies, const Gazetteers& gazetteers)
      : m_Model(bodies),
        m_Marks(m_Model),
        m_Orbits(m_Model),
        m_Paths(m_Model),
        m_Passes(m_Model),
        m_Names(gazetteers) {}

  void FetchTexts() { m_Marks.FetchTexts(); }

  // Where everything stands, before anything else of the frame. None of it allocates.
  void Observe(const ViewGeometry& geometry);
  // What lights the sky; nothing when it was not observed from the Earth or the model has no Sun or Moon
  // then.
  std::optional<SkySources> FindSources(const ObserverFrame& observer) const;
  // Keeps labels off the bodies.
  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ShownKinds& shown,
               const ObjectFilters& filters, const SkyLight& light, const Landscape& landscape,
               LabelPlacer& labels);

  // Labels what Compute has found, and the passes of satellites.
  void PlaceLabels(const ViewGeometry& geometry, const ObserverFrame& observer, const ShownKinds& shown,
                   const ObjectFilters& filters, const SkyLight& light, const Landscape& landscape,
                   LabelPlacer& labels);

  void DrawOrbits(const SkyColours& sky, DisplayList& list) const {
    m_Orbits.Draw(sky, list);
    m_Paths.Draw(sky, list);
  }
  // The paths of satellites under the bodies.
  void DrawBodies(const SkyColours& sky, DisplayList& list) const {
    m_Passes.Draw(list);
    m_Marks.Draw(sky, list);
    m_Names.Draw(list);
  }

  // Whether the last frame was seen from the Earth, so that the model stands at its moment.
  bool IsSeenFromEarth() const { return m_FromEarth; }
  const BodyModel& GetModel() const { return m_Model; }
  const BodyMarks& GetMarks() const { return m_Marks; }
  const EclipseShadows& GetShadows() const { return m_Shadows; }
  OrbitPaths& GetOrbits() { return m_Orbits; }
  const OrbitPaths& GetOrbits() const { return m_Orbits; }
  const SatellitePasses& GetPasses() const { return m_Passes; }

 private:
  BodyModel m_Model;
  EclipseShadows m_Shadows;
  BodyMarks m_Marks;
  OrbitPaths m_Orbits;
  PlanetPaths m_Paths;
  SatellitePasses m_Passes;
  SurfaceNames m_Names;
  bool m_FromEarth = false;
};

}  // namespace scene
