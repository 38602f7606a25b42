// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every reader of the small catalog files of text, given the same bytes.
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "catalogs/observation_times_inside.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/meteor_showers.h"
#include "common_interfaces/object_lists.h"
#include "common_interfaces/observation_times.h"
#include "common_interfaces/panoramas.h"
#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/sky_images.h"
#include "common_interfaces/string_table.h"
#include "fuzz/scratch.h"
#include "utils/text.h"

namespace {

using fuzz::Require;
using fuzz::Scratch;

constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon");

template <std::size_t size>
bool IsTerminated(const char (&text)[size]) {
  return std::memchr(text, 0, size) != nullptr;
}

bool IsSame(const SSO_ID& a, const SSO_ID& b) { return a == b && a.fourth == b.fourth; }
bool IsSame(const CommonInterfaces::ObjectDesc& a, const CommonInterfaces::ObjectDesc& b) {
  return a.kind == b.kind && a.number == b.number;
}

template <class Entry>
void RequireSame(const std::vector<Entry>& a, const std::vector<Entry>& b) {
  Require(a.size() == b.size(), "a list that was written has as many entries");
  for (std::size_t i = 0; i < a.size(); ++i)
    Require(IsSame(a[i], b[i]), "a list that was written is the same");
}

void CheckFavourites() {
  CommonInterfaces::FavouriteObjectsFile read;
  read.Read();
  for (const SSO_ID& object : read.GetObjects()) {
    Require(IsTerminated(object.name) && object.third == 0 && object.fourth == 0, "an identifier is whole");
    Require(read.ObjectIncluded(object), "what is in the list is found");
  }
  read.Write();
  CommonInterfaces::FavouriteObjectsFile again;
  again.Read();
  RequireSame(read.GetObjects(), again.GetObjects());
  const std::vector<SSO_ID> all = again.GetObjects();
  for (const SSO_ID& object : all)
    Require(again.RemoveObject(object) == again.GetSize(), "entries can be removed");
  Require(again.GetSize() == 0, "all of them");
}

// A list with GetObjects and Save.
template <class List, class Entry>
void CheckList(const char* path) {
  std::vector<Entry> read, again;
  List list(path);
  Require(list.GetObjects(read) == !read.empty(), "an empty list is said to be empty");
  Require(list.Save(), "a list can be saved");
  List(path).GetObjects(again);
  RequireSame(read, again);
}

void CheckPlanetsAndMoons() {
  CommonInterfaces::PlanetMoonDescription bodies;
  SSO_ID planet, moon;
  int expected = 0;
  for (bool more = bodies.GetFirstPlanet(planet); more; more = bodies.GetNextPlanet(planet)) {
    Require(planet.kind == kPlanet && planet.number == ++expected, "planets come one by one");
    Require(bodies.GetObjectName(planet) != nullptr && IsTerminated(planet.name), "a planet has a name");
    int moons = 0;
    for (bool one = bodies.GetFirstMoon(moon, planet); one; one = bodies.GetNextMoon(moon)) {
      Require(moon.kind == kMoon && moon.number == planet.number * 100 + ++moons, "moons come one by one");
    }
    Require(moons == bodies.GetNumberOfMoons(planet), "moons are counted as they come");
    Require(bodies.HasMoons(planet) == (moons > 0), "moons are known");
  }
}

void CheckFlights() {
  CommonInterfaces::Voyvane3DFlightObjectsList list;
  Require(list.objectInList(FourCC("star"), -1), "stars are always in reach");
  for (const int number : {-1, 0, 31, 0x7FFFFFFF}) list.objectInList(FourCC("gala"), number);
}

void CheckPanoramas() {
  const std::string folder = Scratch::Get().Path("data/panoramas/");
  const CommonInterfaces::PanoramaDesc panoramas("panoramas:panoramas.ini");
  for (const SSO_ID& body : {SSO_ID(kPlanet, 4), SSO_ID(kMoon, 301), SSO_ID(-1, -1), SSO_ID(0, 0)}) {
    const auto* all = panoramas.GetPanoramas(body);
    const int count = all ? static_cast<int>(all->size()) : 0;
    Require(!all || count > 0, "a list of panoramas holds one");
    for (int i = 0; i < count; ++i) {
      const auto* info = panoramas.GetPanorama(body, i);
      Require(info == &(*all)[static_cast<std::size_t>(i)], "the index counts in the list");
      Require(info->GetPath().rfind(folder, 0) == 0, "a picture lies in the folder of the description");
    }
    Require(!panoramas.GetPanorama(body, count) && !panoramas.GetPanorama(body, -1),
            "an index ends with the list");
  }
}

void CheckObservationTimes() {
  CommonInterfaces::ForgetObservationTimesForTests();
  for (const SSO_ID& object : {SSO_ID(FourCC("comt"), 1), SSO_ID(0, 0), SSO_ID(-1, -1)}) {
    for (const int year : {-0x7FFFFFFF - 1, -1, 1986, 2024, 0x7FFFFFFF}) {
      CommonInterfaces::_Date date;
      if (!CommonInterfaces::GetObsTimeFromFile(&date, object, year)) continue;
      Require(date.fraction >= -0.5 && date.fraction < 0.5, "a date is that of a civil day");
    }
  }
}

void CheckShowers() {
  CommonInterfaces::QX4Strings::StartLocaleUpdate();
  const CommonInterfaces::QX4Strings reload;
  std::vector<CommonInterfaces::SHOWER> showers;
  Require(CommonInterfaces::ReadMeteorShowers(&showers) == !showers.empty(), "the answer tells of showers");
  for (const auto& shower : showers) {
    Require(IsTerminated(shower.name) && IsTerminated(shower.code) && IsTerminated(shower.parentBody),
            "texts end");
    Require(std::isfinite(shower.ra) && std::isfinite(shower.dec), "a radiant is finite");
    Require(shower.decDegrees >= 0 && (shower.decSign == '+' || shower.decSign == '-'),
            "the sign stands alone");
    Require(shower.decSign == '-' ? shower.dec <= 0.0 : shower.dec >= 0.0, "and is that of the declination");
  }
  CommonInterfaces::QX4Strings::FinishLocaleUpdate();
}

void CheckDeepskyImages() {
  CommonInterfaces::DSOImages images;
  for (const auto* image = images.GetFirst(); image; image = images.GetNext()) {
    Require(std::isfinite(image->rotation) && image->aspectRatio > 0.0, "numbers of a picture are sound");
    Require(images.Find(0, static_cast<int>(image->number)) == image, "a picture is found by its number");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Scratch& scratch = Scratch::Get();
  static const char* const kFiles[] = {"work/catalogs/favourites.txt",
                                       "work/catalogs/selection.txt",
                                       "work/catalogs/observationobjects.txt",
                                       "data/catalogs/planets&moons/planets&moons.txt",
                                       "data/catalogs/comets/best_observation_time.ini",
                                       "data/media/find/3d_flight_to_objects.txt",
                                       "data/media/skyobjects/dso_images/dsoimagestrue.txt",
                                       "data/panoramas/panoramas.ini",
                                       "data/qxstrings.txt"};
  for (const char* file : kFiles) scratch.Write(file, data, size);
  CheckFavourites();
  CheckList<CommonInterfaces::SelectedObjectsFile, CommonInterfaces::ObjectDesc>("catalogs:selection.txt");
  CheckList<CommonInterfaces::ChoosingObjectsFile, SSO_ID>("catalogs:observationobjects.txt");
  CheckPlanetsAndMoons();
  CheckFlights();
  CheckPanoramas();
  CheckObservationTimes();
  CheckShowers();
  CheckDeepskyImages();
  return 0;
}
