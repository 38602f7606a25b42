// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Random sequences of storing, saving, loading and going home against a plain model of the rules.
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "camera/home_fixture.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

// What a home holds, part by part.
struct Model {
  struct Location {
    int type, locationType;
    double dist, lon, lat;
    int unit, coor;
    std::string name;
  };
  int flags = 0;
  std::optional<Location> location;
  double alp = 0, bet = 0, slp = 0, zoom = 0;
  bool locked = false;
  SSO_ID centre;
  int day = -1, timeType = 0;
  double fraction = -1;
  std::string zone;
};
using Models = std::map<SSO_ID, Model>;

// A number as the file keeps it: with six digits, or with eight decimals.
double SixDigits(double value) {
  char text[400];
  std::snprintf(text, sizeof text, "%lg", value);
  return std::strtod(text, nullptr);
}
double EightDecimals(double value) {
  char text[400];
  std::snprintf(text, sizeof text, "%.8lf", value);
  return std::strtod(text, nullptr);
}

// What comes back from the file. Homes without a location part lose their observer there.
Models ThroughTheFile(const Models& homes) {
  Models read;
  for (const auto& [observer, home] : homes) {
    Model copy;
    copy.flags = home.flags;
    if (home.flags & 1) {
      copy.location = home.location;
      auto& place = *copy.location;
      const bool named = !place.name.empty();
      place.dist = SixDigits(named ? place.dist * kKilometresPerAu : place.dist) / kKilometresPerAu;
      place.lon = SixDigits(place.lon);
      place.lat = SixDigits(place.lat);
    }
    if (home.flags & 2) {
      copy.alp = EightDecimals(home.alp);
      copy.bet = EightDecimals(home.bet);
      copy.slp = EightDecimals(home.slp);
      copy.zoom = SixDigits(home.zoom);
      copy.locked = home.locked;
      copy.centre = home.centre;
    }
    if (home.flags & 4) {
      copy.day = home.day;
      copy.fraction = EightDecimals(home.fraction);
      copy.timeType = home.timeType;
      copy.zone = home.zone;
    }
    const bool named = (home.flags & 1) != 0;
    if (named && observer == kEarthId) copy.zoom = 0.65;
    read.emplace(named ? observer : SSO_ID(), copy);
  }
  return read;
}

void Compare(const HomeParameters& home, const Model& model) {
  EXPECT_EQ(home.flags, model.flags);
  if (model.location) {
    EXPECT_EQ(home.movingType, model.location->type);
    EXPECT_EQ(home.locationType, model.location->locationType);
    EXPECT_EQ(home.location.dist, model.location->dist);
    EXPECT_EQ(home.location.lon, model.location->lon);
    EXPECT_EQ(home.location.lat, model.location->lat);
    EXPECT_EQ(home.location.distUnits, model.location->unit);
    EXPECT_EQ(home.location.coorSys, model.location->coor);
    EXPECT_EQ(home.locationName, model.location->name);
  }
  EXPECT_EQ(home.alp, model.alp);
  EXPECT_EQ(home.bet, model.bet);
  EXPECT_EQ(home.slp, model.slp);
  EXPECT_EQ(home.zoom, model.zoom);
  EXPECT_EQ(home.directionLocked, model.locked);
  EXPECT_EQ(home.centerObject, model.centre);
  EXPECT_EQ(home.day, model.day);
  EXPECT_EQ(home.fraction, model.fraction);
  EXPECT_EQ(home.timeType, model.timeType);
  EXPECT_EQ(home.timeZoneName, model.zone);
}

class HomesModelTest : public testing::Test {
 protected:
  static constexpr unsigned kSeed = 20261121;

  void Compare() {
    for (const SSO_ID& object : {kEarthId, kMarsId, kMoonId, SSO_ID()}) {
      const HomeParameters* const home = camera->FindHome(object);
      const auto model = homes.find(object);
      ASSERT_EQ(home != nullptr, model != homes.end()) << object.number;
      if (home) ::Compare(*home, model->second);
    }
  }

  void MoveAbout() {
    const SSO_ID objects[] = {kEarthId, kMarsId, kMoonId};
    camera->SetObserver(objects[random.Whole(0, 2)]);
    // Types 6 to 8 have no record: nothing but the type changes.
    camera->SetMovingType(static_cast<char>(random.Whole(0, 3) ? 0 : 6), false);
    SphCoor place;
    place.dist = random.Real(0, 1e-4);
    place.lon = random.Real(-kPi, kPi);
    place.lat = random.Real(-1.5, 1.5);
    place.distUnits = static_cast<unsigned char>(random.Whole(0, 7));
    place.coorSys = 2;
    camera->SetLocation(place);
    camera->SetObsLocatType(static_cast<unsigned char>(random.Whole(0, 255)));
    camera->SetRA_Dec({random.Real(-9, 9), random.Real(-1.5, 1.5), random.Real(-9, 9), 0});
    camera->SetZoom(random.Real(0.1, 1000));
    camera->SetCenterView(objects[random.Whole(0, 2)]);
    camera->SetDirectionLock(random.Whole(0, 1) != 0);
    camera->SetFST_Mode(static_cast<char>(random.Whole(0, 1)));
    camera->SetUniversalTime({random.Whole(1000000, 3000000), random.Real(-0.5, 0.5), random.Whole(0, 2)});
    const char* const zones[] = {"", "Europe/Berlin", "!odd", "}", "\\!"};
    camera->SetTimeZoneName(zones[random.Whole(0, 4)], true);
  }

  void Rename() {
    const char* const names[] = {"", "Home", "!Home", "}", "100 %d", "\\\\!", " ", "caf\xC3\xA9"};
    const std::string name = names[random.Whole(0, 7)];
    camera->SetLocationName(name.c_str());
    const auto home = homes.find(camera->GetObserver());
    if (home == homes.end()) return;
    if (!home->second.location) home->second.location = Model::Location{};
    home->second.location->name = name;
  }

  void Store(int mask) {
    camera->StoreParams(mask);
    if (camera->GetMovingType() != 0) return;
    const SSO_ID observer = camera->GetObserver();
    const bool onEarth = observer == kEarthId;
    const auto found = homes.find(observer);
    Model home = found != homes.end() ? found->second : onEarth ? earthOfTheFile : Model();
    home.flags |= mask;
    const SphCoor& place = camera->GetLocation();
    if (mask & 9) {
      if (!home.location) home.location = Model::Location{};
      if (mask & 1) {
        home.location->type = 0;
        home.location->locationType = camera->GetObsLocatType();
      }
      home.location->dist = place.dist;
      home.location->lon = place.lon;
      home.location->lat = place.lat;
      home.location->unit = place.distUnits;
      home.location->coor = place.coorSys;
      home.location->name = camera->GetLocationName();
      if ((mask & 8) && onEarth) home.zone = camera->GetTimeZoneName();
    }
    if (mask & 2) {
      home.alp = camera->GetViewAngles().lon;
      home.bet = camera->GetViewAngles().lat;
      home.slp = camera->GetViewAngles().slope;
      home.zoom = camera->GetZoom();
      home.locked = camera->IsDirectionLocked();
      if (home.locked) home.centre = camera->GetCenterObject();
    }
    if (mask & 4) {
      _Date time;
      camera->GetUniversalTime(time);
      const bool off = camera->GetFST_Mode() == 0;
      home.day = off ? time.day : -1;
      home.fraction = off ? time.fraction : -1.0;
      home.timeType = off ? time.type : 0;
      home.zone = onEarth ? camera->GetTimeZoneName() : "";
    }
    homes[observer] = home;
  }

  void Load() {
    camera.emplace(1);
    homes = saved;
    const auto earth = homes.find(kEarthId);
    earthOfTheFile = earth != homes.end() ? earth->second : Model();
    EXPECT_EQ(camera->GetTimeZoneName(), earthOfTheFile.zone);
    EXPECT_EQ(camera->GetLocationName(), earthOfTheFile.location ? earthOfTheFile.location->name : "");
  }

  void GoHome() {
    const bool followsClock = camera->GetFST_Mode() != 0;
    camera->GoHome(true);
    const auto found = homes.find(kEarthId);
    if (found == homes.end()) return;
    const Model& home = found->second;
    EXPECT_EQ(camera->GetMovingType(), 0);
    EXPECT_EQ(camera->GetObserver(), kEarthId);
    if (home.flags & 1) {
      EXPECT_EQ(camera->GetLocation().lat, home.location->lat);
      EXPECT_EQ(camera->GetLocationName(), home.location->name);
    }
    if (home.flags & 2) {
      EXPECT_EQ(camera->GetViewAngles().lat, home.bet);
      EXPECT_NEAR(camera->GetZoom(), home.zoom, 1e-10);  // what SetZoom takes for the same
    }
    EXPECT_EQ(camera->IsDirectionLocked(), (home.flags & 2) != 0 && home.locked);
    if ((home.flags & 4) && home.day != -1 && !followsClock) {
      _Date time;
      camera->GetUniversalTime(time);
      EXPECT_EQ(time.day, home.day);
      EXPECT_EQ(time.fraction, home.fraction);
    }
  }

  TempRoots roots;
  DebugCapture debug;
  Random random{kSeed};
  std::optional<Camera> camera{std::in_place, 1};
  Models homes, saved;
  Model earthOfTheFile;
};

TEST_F(HomesModelTest, TenThousandStepsWithoutADifference) {
  for (int step = 0; step < 10000 && !HasFailure(); ++step) {
    SCOPED_TRACE("seed " + std::to_string(kSeed) + ", step " + std::to_string(step));
    const int kind = random.Whole(0, 99);
    if (kind < 45) {
      MoveAbout();
    } else if (kind < 75) {
      Store(random.Whole(0, 15));
    } else if (kind < 85) {
      Rename();
    } else if (kind < 90) {
      camera->SaveHomeParams();
      saved = ThroughTheFile(homes);
    } else if (kind < 94) {
      Load();
    } else {
      GoHome();
    }
    Compare();
  }
}

}  // namespace
