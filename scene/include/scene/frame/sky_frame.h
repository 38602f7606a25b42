// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/marker_info.h"
#include "scene/api.h"
#include "scene/bodies/body_model.h"
#include "scene/bodies/eclipse.h"
#include "scene/catalogs/landscape.h"
#include "scene/catalogs/showers.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/chart/finder.h"
#include "scene/display/display_list.h"
#include "scene/display/text_extents.h"
#include "scene/frame/image_groups.h"
#include "scene/view/observer_frame.h"
#include "scene/visibility/class_limits.h"
#include "scene/visibility/drawn_objects.h"
#include "scene/visibility/object_filter.h"
#include "scene/visibility/shown_kinds.h"

namespace scene {

struct FrameParts;

// Everything of one picture: from a camera and catalogs to a display list. Objects below the horizon are left
// out while the horizon is shown.
//
// There is room for the whole catalogs from the start, of tile catalogs for the 262,144 stars that a frame
// shows at most (where there would be more, the faintest are left out all over the window), so that Compute
// allocates nothing but blocks of the pool of output records, each when the first frame needs it. Output
// records and display list are valid until the next Compute. `catalogs` is kept by reference. One thread.
class SCENE_API SkyFrame {
 public:
  explicit SkyFrame(const SkyCatalogs& catalogs);
  ~SkyFrame();
  SkyFrame(const SkyFrame&) = delete;
  SkyFrame& operator=(const SkyFrame&) = delete;

  // What is shown besides the catalogs' objects, for the frames that follow. Nothing at first.

  // The lines of text in the lower left corner (MakeCaption), UTF-8.
  void SetCaption(std::vector<std::string> lines);
  // The camera's markers, placed by UpdateOIMarkers. Allocates only for more markers than before.
  void SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers);
  // The objects that get a mark, by kind and number; those that the catalogs lack are passed over.
  void SetFavourites(const std::vector<SSO_ID>& objects);
  // The showers of which the active ones have their radiants drawn.
  void SetShowers(std::vector<Shower> showers);
  // The groups of images that have their outlines drawn, a combination of ImageGroup. Answers the group whose
  // catalog is missing (GetImageCatalogName), if one is: no outlines are drawn then.
  std::optional<ImageGroup> SetImageFrames(unsigned groups);
  // What stands on the ground where a horizon is shown, in styles that show the sky as it looks. An empty
  // one: the ground is plain. Objects behind it are drawn before it, and their names are not.
  void SetLandscape(Landscape landscape);
  // The fields of instruments around the middle of the picture.
  void SetFinders(std::vector<Finder> finders);
  // The box that says what the dots and symbols mean, with a scale, north and east.
  void ShowLegend(bool shown);
  // How many times larger lines, points and texts are than in a picture of that size on a desk
  // (GetPictureUnit): 1 until then. For pictures that are looked at from nearer or that have finer pixels.
  void SetEnlargement(double enlargement);
  // Switches the orbit of a body on, by its index in the catalogs' list; it appears over `fadeIn` seconds of
  // the animation clock (utils/clock.h). False for a body that has none: the Sun.
  bool ShowOrbit(int body, double fadeIn);

  // Who tells how much room texts take; kept by reference. Until then they are estimated. The next frame
  // places its names by what is in it alone.
  void SetTextExtents(const TextExtents& extents);

  // Takes the letters of the compass, the names of planets and showers from the string table, as the
  // construction does. To be called when the language has changed.
  void FetchTexts();

  // The camera must be prepared (PrepareObserver) for the same moment.
  void Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer, const ShownKinds& shown,
               const ObjectFilters& filters = ObjectFilters::None());

  // What the last Compute made.

  const DisplayList& GetDisplayList() const;
  int GetWidth() const { return GetDisplayList().GetWidth(); }
  int GetHeight() const { return GetDisplayList().GetHeight(); }
  const std::vector<DrawnStar>& GetStars() const;  // brightest first
  const std::vector<DrawnDeepsky>& GetDeepsky() const;
  // Whether the frame was seen from the Earth: only then the model below stands at its moment.
  bool IsSeenFromEarth() const;
  const BodyModel& GetBodies() const;
  const EclipseShadows& GetEclipses() const;
  bool IsBodyDrawn(int body) const;
  bool IsSunlit(int body) const;  // of a satellite; true for any other body
  bool IsPoolExhausted() const;
  // The limits of a class in the part of the window where the sky is darkest.
  ClassLimits GetDrawnLimits(const ClassLimits& limits) const;

  const SkyCatalogs& GetCatalogs() const { return m_Catalogs; }
  // The parts of the frame, for the tests of visibility (scene/frame/frame_parts.h).
  const FrameParts& GetParts() const { return *m_Parts; }

 private:
  const SkyCatalogs& m_Catalogs;
  std::unique_ptr<FrameParts> m_Parts;
};

}  // namespace scene
