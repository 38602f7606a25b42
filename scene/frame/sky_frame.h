// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/marker_info.h"
#include "scene/frame/caption.h"
#include "scene/frame/favourite_marks.h"
#include "scene/frame/image_frames.h"
#include "scene/frame/labels.h"
#include "scene/frame/marker_marks.h"
#include "scene/frame/milky_way_picture.h"
#include "scene/visibility/object_filter.h"
#include "scene/view/observer_frame.h"
#include "scene/frame/shower_radiants.h"
#include "scene/visibility/shown_kinds.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/frame/sky_figures.h"
#include "scene/frame/sky_horizon.h"
#include "scene/frame/sky_objects.h"
#include "scene/bodies/solar_system_part.h"

namespace skyview {

// Everything of one picture, computed and not yet painted. Coordinates are the camera's: pixels from the left and from
// the bottom upwards. Objects below the horizon are left out while the horizon is shown. Each part of the picture is a
// class of its own; this one calls them in the order in which they take room for their labels.
//
// The parts have room for the whole catalogs from the start, so that Compute allocates nothing but blocks of the pool
// of output records, each when the first frame needs it. The output records are valid until the next Compute.
// `catalogs` is kept by reference. One thread.
class SkyFrame {
 public:
  explicit SkyFrame(const SkyCatalogs& catalogs);

  // The lines of text in the lower left corner (MakeCaption), UTF-8, for the frames that follow.
  void SetCaption(std::vector<std::string> lines) { m_Caption.SetLines(std::move(lines)); }
  int GetCaptionLineCount() const { return m_Caption.GetLineCount(); }

  // Takes the letters of the compass and the names of planets from the string table, as the construction does. To be called when the language
  // has changed.
  void FetchTexts() {
    m_Horizon.FetchTexts();
    m_Radiants.FetchTexts();
    m_SolarSystem.FetchTexts();
  }

  // The camera's markers, placed by UpdateOIMarkers, for the next frame. Allocates only for more markers than before.
  void SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers) {
    m_Markers.SetMarkers(markers);
  }

  // What is shown besides the catalogs' objects, for the frames that follow. Nothing at first.
  FavouriteMarks& GetFavouriteMarks() { return m_FavouriteMarks; }
  ImageFrames& GetImageFrames() { return m_ImageFrames; }
  ShowerRadiants& GetRadiants() { return m_Radiants; }

  // The camera must be prepared (PrepareObserver) for the same moment.
  void Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer, const ShownKinds& shown,
               const ObjectFilters& filters = ObjectFilters::None());

  int GetWidth() const { return m_Width; }
  int GetHeight() const { return m_Height; }
  double GetUnit() const { return m_Unit; }  // GetPictureUnit of the window
  const SkyCatalogs& GetCatalogs() const { return m_Catalogs; }
  const std::vector<DrawnStar>& GetStars() const { return m_Objects.GetStars(); }
  const std::vector<DrawnDeepsky>& GetDeepsky() const { return m_Objects.GetDeepsky(); }
  const std::vector<DrawnLine>& GetLines() const { return m_Figures.GetLines(); }
  const std::vector<Label>& GetLabels() const { return m_Labels.GetLabels(); }
  const std::vector<RegionPicture>& GetMilkyWay() const { return m_MilkyWay.GetLevels(); }
  const std::vector<RegionPicture>& GetHaze() const { return m_Horizon.GetHaze(); }
  const RegionPicture& GetGround() const { return m_Horizon.GetGround(); }
  const std::vector<CompassMark>& GetCompass() const { return m_Horizon.GetCompass(); }
  const std::vector<DrawnMarker>& GetMarkers() const { return m_Markers.GetDrawn(); }
  const FavouriteMarks& GetFavouriteMarks() const { return m_FavouriteMarks; }
  const ImageFrames& GetImageFrames() const { return m_ImageFrames; }
  const ShowerRadiants& GetRadiants() const { return m_Radiants; }
  const SolarSystemPart& GetSolarSystem() const { return m_SolarSystem; }
  OrbitPaths& GetOrbits() { return m_SolarSystem.GetOrbits(); }
  bool IsPoolExhausted() const { return m_Objects.IsPoolExhausted(); }

 private:
  const SkyCatalogs& m_Catalogs;
  int m_Width = 0, m_Height = 0;
  double m_Unit = 1.0;
  LabelPlacer m_Labels;
  CaptionBlock m_Caption;
  MarkerMarks m_Markers;
  MilkyWayPicture m_MilkyWay;
  SkyHorizon m_Horizon;
  SkyFigures m_Figures;
  SolarSystemPart m_SolarSystem;
  SkyObjects m_Objects;
  FavouriteMarks m_FavouriteMarks;
  ImageFrames m_ImageFrames;
  ShowerRadiants m_Radiants;
};

}  // namespace skyview
