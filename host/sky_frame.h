// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/marker_info.h"
#include "common_interfaces/object_outputs.h"
#include "common_interfaces/output_pool.h"
#include "host/class_limits.h"
#include "host/horizon.h"
#include "host/labels.h"
#include "host/object_filter.h"
#include "host/object_tests.h"
#include "host/observer_frame.h"
#include "host/shown_kinds.h"
#include "host/sky_catalogs.h"
#include "host/sky_region.h"

namespace skyview {

// A star of the frame: its output record (in the frame's pool), its index in the catalogue, how it is drawn.
struct DrawnStar {
  CommonInterfaces::StarOutput* output;
  int star;
  float opacity;  // 0 to 1
};

struct DrawnDeepsky {
  CommonInterfaces::DeepskyOutput* output;
  int object;
  float opacity;
};

// A stretch of a constellation figure inside the window, pixels, y up.
struct DrawnLine {
  tPoint<double> from, to;
};

// A mark on the horizon: where it stands and the direction of "down" there, a unit vector.
struct CompassMark {
  tPoint<double> place, down;
  bool main;  // north, east, south or west
};

// A marker of the camera that is on screen, with its identifier as text.
struct DrawnMarker {
  tPoint<double> place;
  char text[12];
};

// What one pixel of the standard picture of 1600 x 1000 is in a picture of that size.
double GetPictureUnit(int width, int height);

// Everything of one picture, computed and not yet painted. Coordinates are the camera's: pixels from the left and from
// the bottom upwards. Objects below the horizon are left out while the horizon is shown.
//
// The lists have room for the whole catalogs from the start and the pool keeps its blocks, so that Compute allocates
// nothing but the pool's blocks, each when the first frame needs it. The output records are
// valid until the next Compute. `catalogs` is kept by reference. One thread.
class SkyFrame {
 public:
  explicit SkyFrame(const SkyCatalogs& catalogs);

  // The lines of text in the lower left corner (MakeCaption), UTF-8, for the frames that follow.
  void SetCaption(std::vector<std::string> lines) { m_Caption = std::move(lines); }
  int GetCaptionLineCount() const { return static_cast<int>(m_Caption.size()); }

  // Takes the letters of the compass from the string table, as the construction does. To be called when the language
  // has changed.
  void FetchTexts() { m_CompassLetters = FetchCompassLetters(); }

  // The camera's markers, placed by UpdateOIMarkers, for the next frame. Allocates only for more markers than before.
  void SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers) { m_CameraMarkers = markers; }

  // The camera must be prepared (PrepareObserver) for the same moment.
  void Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer, const ShownKinds& shown,
               const ObjectFilters& filters = ObjectFilters::None());

  int GetWidth() const { return m_Width; }
  int GetHeight() const { return m_Height; }
  double GetUnit() const { return m_Unit; }  // GetPictureUnit of the window
  const SkyCatalogs& GetCatalogs() const { return m_Catalogs; }
  const std::vector<DrawnStar>& GetStars() const { return m_Stars; }
  const std::vector<DrawnDeepsky>& GetDeepsky() const { return m_Deepsky; }
  const std::vector<DrawnLine>& GetLines() const { return m_Lines; }
  const std::vector<Label>& GetLabels() const { return m_Labels.GetLabels(); }
  const std::vector<RegionPicture>& GetMilkyWay() const { return m_MilkyWay; }  // level 1 to 5
  const std::vector<RegionPicture>& GetHaze() const { return m_Haze; }          // highest first
  const RegionPicture& GetGround() const { return m_Ground; }
  const std::vector<CompassMark>& GetCompass() const { return m_Compass; }
  const std::vector<DrawnMarker>& GetMarkers() const { return m_Markers; }
  bool IsPoolExhausted() const { return m_PoolExhausted; }

 private:
  void ReserveLists();
  void AddCaption();
  void AddMarkers();
  void AddMilkyWay(const ViewGeometry& geometry);
  void AddHorizon(const ViewGeometry& geometry);
  void AddCompass(const ViewGeometry& geometry);
  void AddCompassLetter(const CompassMark& mark, const char* letter);
  void AddFigures(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests);
  void AddStroke(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
                 const FigureStroke& stroke);
  void AddStars(const ViewGeometry& geometry, const ObjectTests& tests);
  void AddStar(const ViewGeometry& geometry, const ObjectPlace& place, int star, const ClassLimits& limits);
  void AddDeepsky(const ViewGeometry& geometry, const ObjectTests& tests);
  void AddDeepskyObject(const ViewGeometry& geometry, const tPoint<double>& p, int object,
                        const ClassLimits& limits);
  void AddNames(const ObjectTests& tests, const ShownKinds& shown);
  void LabelStars(const ClassLimits& limits);
  void LabelDeepsky(const ObjectTests& tests);

  const SkyCatalogs& m_Catalogs;
  CommonInterfaces::OutputPool m_Pool;
  bool m_PoolExhausted = false;
  unsigned m_Number = 0;  // of the frame
  int m_Width = 0, m_Height = 0;
  double m_Unit = 1.0;
  std::vector<Direction> m_AltitudeCircles;  // the horizon first, then those of the haze
  std::vector<DrawnStar> m_Stars;
  std::vector<DrawnDeepsky> m_Deepsky;
  std::vector<DrawnLine> m_Lines;
  std::vector<RegionPicture> m_MilkyWay;
  std::vector<RegionPicture> m_Haze;
  RegionPicture m_Ground;
  std::vector<CompassMark> m_Compass;
  std::vector<CommonInterfaces::MARKER_INFO> m_CameraMarkers;
  std::vector<DrawnMarker> m_Markers;
  LabelPlacer m_Labels;
  CompassLetters m_CompassLetters;
  std::vector<std::string> m_Caption;
};

}  // namespace skyview
