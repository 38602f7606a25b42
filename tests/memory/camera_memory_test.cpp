// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The camera while memory runs out.
#include <memory>

#include "camera/home_fixture.h"
#include "memory/every_allocation.h"
#include "memory/made.h"
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

using namespace CommonInterfaces;
using namespace memory_tests;

std::string Text(const SSO_ID& object) {
  return std::to_string(object.kind) + '/' + std::to_string(object.number) + object.name + ' ';
}

// What the camera's operations below may change.
std::string StateOf(Camera& camera) {
  _Date time;
  camera.GetUniversalTime(time);
  const SphCoor place = camera.GetLocation();
  const SphViewCoor view = camera.GetViewAngles();
  SSO_ID flight, quick;
  camera.Get3DFlightObject(&flight);
  camera.GetQuickOI_id(quick);
  std::string state;
  for (const double value :
       {time.fraction, camera.GetZoom(), place.lon, place.lat, place.dist, view.lon, view.lat, view.slope,
        camera.GetLocUTCdelta(), static_cast<double>(camera.GetDarkMagObjectF(FourCC("star")))})
    state += std::to_string(value) + ' ';
  for (const int value : {time.day, time.type, int{camera.GetFST_Mode()}, int{camera.GetMovingType()},
                          int{camera.IsObserverChanged()}, int{camera.IsDirectionLocked()},
                          int{camera.IsFirstLook()}, int{camera.GetBasePlane()}, int{camera.IsGoingHome()},
                          int{camera.IsAnyPlay()}, int{camera.IsZoomChanged()}, int{camera.IsTimeChanged()}})
    state += std::to_string(value) + ' ';
  state += Text(camera.GetObserver()) + Text(camera.GetCenterObject()) + Text(flight) + Text(quick);
  state += camera.GetLocationName() + camera.GetTimeZoneName();
  for (const auto& [observer, home] : camera.GetHomes())
    state +=
        Text(observer) + std::to_string(home.flags) + home.locationName + std::to_string(home.location.lon);
  for (const MARKER_INFO& marker : *camera.GetOIMarkerList()) state += " marker " + std::to_string(marker.id);
  HomeParameters left;
  if (camera.FindTempParams(&left, camera.GetObserver())) state += " left " + std::to_string(left.zoom);
  return state;
}

class CameraMemory : public testing::Test {
 protected:
  CameraMemory() {
    WriteCameraDefaults(m_Roots);
    RecordFields moon = CameraFields();
    ReplaceField(moon, Double("m_Zoom", 3.0));
    WriteCameraDefaults(m_Roots, moon, 0x434D5851);  // "QXMC": moving type 1
    m_Roots.dir.Write(
        "work/home_params.ini",
        "7\n0 2 0 0.15 0.87 1 2 1886154356 3 1\nA place with a name that is longer than a short one\n"
        "0.5 -0.25 0.125 2\n3.5\n1 1836019566 401\n2460000 0.25 1\nEurope/Berlin\n");
    RecordFields view = CameraFields();
    ReplaceField(view, Double("m_Zoom", 7.0));
    AppendBlock(m_Roots.dir.Path("work/view.data"), kCAMR, 1, kCameraSection, view);
    m_View = m_Roots.dir.Read("work/view.data");
  }

  static std::unique_ptr<Camera> Make() {
    auto camera = std::make_unique<Camera>(1);
    camera->CreateDefault();
    return camera;
  }
  // The file belongs to what is to be as it was.
  template <class Call>
  void FailEach(Call call, Leaves leaves = Leaves::kAsItWas) {
    const auto prepare = [this] {
      m_Roots.dir.Write("work/view.data", m_View);
      return Make();
    };
    FailEveryAllocation(
        prepare, call,
        [this](Camera& camera) {
          return StateOf(camera) + m_Roots.dir.Read("work/view.data") +
                 m_Roots.dir.Read("work/home_params.ini");
        },
        leaves);
  }

  TempRoots m_Roots;
  std::string m_View;
};

TEST_F(CameraMemory, IsMade) {
  FailMaking<Camera>([] { return std::make_unique<Camera>(1); },
                     [](Camera& camera) { return StateOf(camera); });
}

TEST_F(CameraMemory, DefaultsAreRead) {
  FailEveryAllocation([] { return std::make_unique<Camera>(1); },
                      [](Camera& camera) { camera.CreateDefault(); }, StateOf);
}

TEST_F(CameraMemory, ViewIsRead) {
  FailEach([](Camera& camera) { EXPECT_TRUE(camera.ReadSelf("view.data", 1)); });
}

TEST_F(CameraMemory, IsAssigned) {
  auto other = Make();
  other->SetZoom(5.0);
  other->SetLocationName("another place with a name that is longer than a short one");
  other->SetObserver(kMarsId);
  other->StoreParams(kHomeLocation);
  MARKER_INFO marker = {};
  marker.id = 5;
  other->AddOIMarker(marker);
  FailEach([&](Camera& camera) { camera = *other; });
}

TEST_F(CameraMemory, MovingTypeIsChanged) {
  FailEach([](Camera& camera) { camera.SetMovingType(1, true); });
}

TEST_F(CameraMemory, GoesHome) {
  FailEach([](Camera& camera) { camera.GoHome(true); });
}

TEST_F(CameraMemory, ViewsAreSaved) {
  FailEach([](Camera& camera) { camera.SaveSelfAll("view.data", 2); });
  FailEach([](Camera& camera) { camera.SaveSelf("view.data", 2); });
}

TEST_F(CameraMemory, ViewsAreAppended) {
  FailEach([](Camera& camera) { camera.WriteSelf("view.data", 2); }, Leaves::kValid);
  FailEach([](Camera& camera) { camera.WriteSelfAll("view.data", 2); }, Leaves::kValid);
}

TEST_F(CameraMemory, HomesAreStored) {
  FailEach([](Camera& camera) { camera.StoreTempParams(); });
  FailEach([](Camera& camera) {
    camera.SetLocationName("another place with a name that is longer than a short one");
  });
}

TEST_F(CameraMemory, HomesAreSaved) {
  const std::string earlier = m_Roots.dir.Read("work/home_params.ini");
  const auto prepare = [&] {
    m_Roots.dir.Write("work/home_params.ini", earlier);
    auto camera = Make();
    camera->SetObserver(kMarsId);
    camera->StoreParams(kHomeLocation);
    return camera;
  };
  FailEveryAllocation(
      prepare, [](Camera& camera) { camera.StoreHomeParams(); },
      [&](Camera& camera) { return StateOf(camera) + m_Roots.dir.Read("work/home_params.ini"); });
}

TEST_F(CameraMemory, MarkersAndPlaysAreSet) {
  FailEach([](Camera& camera) {
    MARKER_INFO marker = {};
    marker.id = kOnScreenFinderMarker;
    camera.AddOIMarker(marker);
  });
  FailEach([](Camera& camera) { camera.SetPlay(kPlayTime, kPlayRunning, 1.0); });
}

TEST_F(CameraMemory, CorrectionsAreTaken) {
  SettingsData settings(1, kOwner, "filters.data");
  AddField(settings, static_cast<unsigned>(FourCC("star")), Int16("MagS", {20}));
  const auto prepare = [&] {
    settings = SettingsData(1, kOwner, "none.data");
    AddField(settings, static_cast<unsigned>(FourCC("star")), Int16("MagS", {20}));
    return Make();
  };
  FailEveryAllocation(
      prepare, [&](Camera& camera) { camera.FillMagCorrectionsVector(&settings); },
      [](Camera& camera) { return StateOf(camera); }, Leaves::kNothing);
}

}  // namespace
}  // namespace test_support
