// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every field that the shipped settings have changes a picture of the shipped sky, or --set says that it does
// not.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "astro/julian_date.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/field_data.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/satellites.h"
#include "scene/frame/sky_frame.h"
#include "scene/visibility/setting_values.h"
#include "skyview/commands/skyview.h"
#include "skyview/session/own_settings.h"
#include "support/debug_capture.h"
#include "utils/path.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 1;

template <class T>
void AppendBytes(const std::vector<T>& records, std::string& bytes) {
  bytes.append(reinterpret_cast<const char*>(records.data()), records.size() * sizeof(T));
}

std::string GetBytes(const scene::DisplayList& list) {
  std::string bytes;
  AppendBytes(list.GetRuns(), bytes);
  AppendBytes(list.GetPoints(), bytes);
  AppendBytes(list.GetDiscs(), bytes);
  AppendBytes(list.GetGlobes(), bytes);
  AppendBytes(list.GetPolylines(), bytes);
  AppendBytes(list.GetEllipses(), bytes);
  AppendBytes(list.GetPolygons(), bytes);
  AppendBytes(list.GetGradients(), bytes);
  AppendBytes(list.GetTexts(), bytes);
  AppendBytes(list.GetVertices(), bytes);
  AppendBytes(list.GetTextBytes(), bytes);
  return bytes;
}

struct RichView {
  CalendarDate time;
  double latitude, longitude;         // degrees
  double azimuth, altitude, zoom;     // degrees
  std::vector<std::string> settings;  // of the view, before the change
  bool naturalSky = false;            // the views of the day show what is faint, too
};

// The western sky above a horizon, from Vela over Orion to M31, with a comet; the sky around the new Moon
// with Sun, planets, asteroids and satellites, no horizon; Venus as a crescent; Jupiter and
// its moons; the Moon and Mars so large that their surfaces have names; double and variable stars and one
// with planets around υ And; a view of the second kind whose asteroids are all shown. In German, so that
// names in the language of the texts differ from the catalog's.
const RichView kViews[] = {
    {{1997, 4, 1, 17, 30, 0.0},
     30.0,
     8.7,
     240.0,
     35.0,
     0.28,
     {"star.StarZoomDependShow=30", "star.StarZoomDependLabel=16", "clst.SCZoomDependLabel=60",
      "gala.GLZoomDependShow=100", "gala.GLZoomDependLabel=160", "nebu.NBZoomDependLabel=60",
      "dsnv.NonOpticLabel=1", "dsnv.NOZoomDependLabel=60", "comt.ComtZoomDependShow=60",
      "comt.ComtZoomDependLabel=60"}},
    {{2014, 1, 30, 21, 40, 0.0},
     50.1,
     8.7,
     318.0,
     -40.0,
     0.3,
     {"grid.HorizonDraw=0", "astr.AstrZoomDependShow=60", "astr.AstrZoomDependLabel=60"}},
    {{2014, 1, 20, 12, 0, 0.0}, 50.1, 8.7, 202.49, 21.26, 200.0, {}},
    {{2014, 1, 20, 22, 0, 0.0}, 50.1, 8.7, 168.4636, 62.4473, 60.0, {}},
    {{2026, 6, 27, 21, 0, 0.0}, 52.52436944, 13.41053056, 174.05282, 9.19589, 60.0, {}},
    {{2027, 2, 19, 23, 0, 0.0},
     52.52436944,
     13.41053056,
     170.03305278,
     52.55262778,
     10000.0,
     {"grid.SkyDirt=2"}},
    {{2026, 1, 15, 18, 0, 0.0}, 50.1, 8.7, 210.4, 80.7, 4.0, {}},
    {{2014, 1, 30, 21, 40, 0.0}, 50.1, 8.7, 318.0, -40.0, 0.3, {"grid.HorizonDraw=0", "astr.AsterGroups=1"}}};

class ShippedSky : public testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(scene::OpenDataRoot(CI_BUILT_DATA, "", "de", m_Catalogs, error)) << error;
    ASSERT_TRUE(
        scene::LoadSatellites(ZentharPath::GetPath("catalogs:satellites.tle"), m_Catalogs.bodies, error));
    AddOtherDeepsky();
    m_Frame = std::make_unique<scene::SkyFrame>(m_Catalogs);
  }
  void TearDown() override { ZentharPath::SetRoots(nullptr, nullptr); }

  // The shipped catalogs have no object of the section dsnv that bright: M 77 again, as a source of radio
  // waves.
  void AddOtherDeepsky() {
    for (const auto& object : m_Catalogs.deepsky) {
      if (std::string_view(object.label) != "M77") continue;
      scene::DeepskyObject other = object;
      other.kind = FourCC("dsnv");
      other.label = other.properName = other.designation = "Cet A";
      other.code = 30.0f;
      m_Catalogs.deepsky.objects.insert(m_Catalogs.deepsky.begin(), other);
      return;
    }
  }

  static bool Change(const std::string& change, SettingsData& settings) {
    const skyview::ViewResult result = skyview::ChangeSetting(change, settings);
    EXPECT_EQ(result.message, "");
    return result.message.empty();
  }

  std::string Draw(const RichView& view, const std::string& change) {
    SettingsData settings(kOwner, FourCC("FLTR"), "filters.data");
    EXPECT_TRUE(settings.Read(nullptr));
    for (const auto& own : view.settings) Change(own, settings);
    if (!change.empty()) Change(change, settings);
    CommonInterfaces::Camera camera(kOwner);
    camera.CreateDefault();
    camera.SetBasePlane(1);
    camera.FillMagCorrectionsVector(&settings);
    SphCoor place = camera.GetLocation();
    place.lat = view.latitude * scene::kRadiansPerDegree;
    place.lon = view.longitude * scene::kRadiansPerDegree;
    camera.SetLocation(place);
    CommonInterfaces::_Date time;
    DJ(view.time, time.day, time.fraction);
    camera.SetUniversalTime(time);
    camera.SetWinRect({1600, 1000, 1600, 1000});
    camera.SetZoom(view.zoom);
    SphViewCoor angles;
    angles.lon = (360.0 - view.azimuth) * scene::kRadiansPerDegree;
    angles.lat = view.altitude * scene::kRadiansPerDegree;
    camera.SetRA_Dec(angles);
    scene::ObjectFilters filters;
    filters.Refresh(settings);
    scene::ShownKinds shown = scene::ReadShownKinds(settings);
    shown.naturalSky = view.naturalSky;
    m_Frame->SetTextExtents(m_Extents);  // names forget where they were in the picture before
    m_Frame->Compute(camera, scene::PrepareObserver(camera, shown.refraction), shown, filters);
    return GetBytes(m_Frame->GetDisplayList());
  }

  // Whether one of the changes changes one of the views.
  bool Acts(const std::vector<std::string>& changes) {
    for (std::size_t i = 0; i < std::size(kViews); ++i) {
      if (m_Plain.size() == i) m_Plain.push_back(Draw(kViews[i], ""));
      for (const auto& change : changes) {
        if (Draw(kViews[i], change) != m_Plain[i]) return true;
      }
    }
    return false;
  }

  // Changes that put the field to other values, and a filter on.
  static std::vector<std::string> MakeChanges(const SettingField& field) {
    const std::string name = scene::GetCodeText(static_cast<int>(field.GetSection())) + "." +
                             scene::GetFieldTitle(field.GetNameId());
    if (field.GetCondition() == CommonInterfaces::kLabelListCondition) return {name + "[0]=1:on"};
    std::string values;
    for (unsigned i = 0; i < field.GetSize(); ++i) values += i == 0 ? "=0" : ",0";
    if (field.GetCondition() != scene::kNoCondition) return {name + values + ":on"};
    if (field.GetType() != CommonInterfaces::kFieldUInt8) return {name + "=-150", name + "=150"};
    return {name + "=0", name + "=1"};
  }

  test_support::DebugCapture m_Diagnostics;
  scene::SkyCatalogs m_Catalogs;
  scene::TextExtents m_Extents;
  std::unique_ptr<scene::SkyFrame> m_Frame;
  std::vector<std::string> m_Plain;
};

TEST_F(ShippedSky, EveryFieldOfTheSettingsActsOrIsRefused) {
  SettingsData settings(kOwner, FourCC("FLTR"), "filters.data");
  ASSERT_TRUE(settings.Read(nullptr));
  ASSERT_GT(settings.GetFieldCount(), 80);
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const std::vector<std::string> changes = MakeChanges(*settings.GetFieldAt(i));
    const skyview::ViewResult answer = skyview::CheckActs(changes.front());
    EXPECT_NE(Acts(changes), !answer.message.empty()) << changes.front() << " " << answer.message;
  }
}

// Its own place is cut by the upper edge of that view.
TEST(ShippedViews, ConstellationOfTheViewHasItsName) {
  std::ostringstream output, errors;
  ASSERT_EQ(skyview::Run({"why", "Ori", "--view", "views/orion.data:1", "--data", CI_BUILT_DATA}, "", output,
                         errors),
            0)
      << errors.str();
  EXPECT_NE(output.str().find("Orion (Ori): drawn\n"), std::string::npos) << output.str();
}

}  // namespace
