// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/bodies.h"

#include <limits>

#include "astro/moons.h"
#include "astro/solar_system.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/record_conversion.h"
#include "scene/catalogs/object_names.h"
#include "scene/catalogs/texts.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/text.h"

namespace scene {
namespace {

// Takes over the record that the conversion hands to the model.
class ElementsTaker : public CQXSolSys {
 public:
  bool SetLocateObject(const SSO_ID&, const void* data) override {
    taken = data != nullptr;
    if (taken) elements = *static_cast<const OrbitalElements*>(data);
    return taken;
  }

  bool taken = false;
  OrbitalElements elements;
};

// The number of the planet Pluto among the asteroids: one body, and the model knows the planet.
constexpr int kPlutoAsAsteroid = 134340;

constexpr short kLocateMode = 1;  // of ConvertDBRecord: the record goes to SetLocateObject

void AddKnownBodies(BodyList& bodies) {
  const auto add = [&bodies](int kind, int number) {
    SkyBody body;
    body.id = SSO_ID(kind, number);
    bodies.push_back(body);
  };
  constexpr int kPlanets = 9;
  add(FourCC("plnt"), kSunNumber);
  add(FourCC("moon"), kMoonNumber);
  for (int planet = 1; planet <= kPlanets; ++planet) {
    if (planet != kEarthNumber) add(FourCC("plnt"), planet);
  }
}

// Those that the list of planets and moons names and the model places.
void AddMoons(BodyList& bodies) {
  CommonInterfaces::PlanetMoonDescription description;
  for (int planet = 1; planet <= astro::kPlutoNumber; ++planet) {
    SkyBody body;
    const SSO_ID parent(FourCC("plnt"), planet);
    for (bool more = description.GetFirstMoon(body.id, parent); more;
         more = description.GetNextMoon(body.id)) {
      if (body.id.number == kMoonNumber || !astro::IsMoonOfPlanet(body.id)) continue;
      body.names = {description.GetObjectName(body.id)};
      bodies.push_back(body);
    }
  }
}

// "1P/Halley" is also known as "Halley" and "1P", "C/1995 O1 (Hale-Bopp)" as "Hale-Bopp" and "C/1995 O1".
void AddCometNames(const std::string& name, std::vector<std::string>& names) {
  const auto bracket = name.find(" (");
  const auto slash = name.find('/');
  if (bracket != std::string::npos && name.ends_with(")")) {
    names.push_back(name.substr(bracket + 2, name.size() - bracket - 3));
    names.push_back(name.substr(0, bracket));
  } else if (slash != std::string::npos && slash > 1) {
    names.push_back(name.substr(slash + 1));
    names.push_back(name.substr(0, slash));
  }
}

void AddNames(const CatalogTable& table, SkyBody& body) {
  const std::string name = FieldText(table, CommonInterfaces::FieldIds::ProperName);
  body.names.push_back(name.empty() ? std::to_string(body.id.number) : name);
  if (body.id.kind == FourCC("astr")) {
    body.names.push_back(std::to_string(body.id.number) + " " + name);
  } else {
    AddCometNames(name, body.names);
  }
}

void AddTable(const char* name, int kind, BodyList& bodies) {
  const std::string path = ZentharPath::GetPath(name);
  if (path.empty()) {
    PrintDebugString("%s: not found in the data root, its bodies are not shown\n", name);
    return;
  }
  CatalogTable table;
  if (!table.Load(path.c_str())) {
    PrintDebugString("%s\n", table.GetError().c_str());
    return;
  }
  ElementsTaker taker;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    SkyBody body;
    body.id = SSO_ID(kind, FieldInteger(table, CommonInterfaces::FieldIds::Number, -1));
    if (body.id == SSO_ID(FourCC("astr"), kPlutoAsAsteroid)) continue;
    taker.taken = false;
    CommonInterfaces::ConvertDBRecord(body.id, &table, nullptr, &taker, kLocateMode);
    if (!taker.taken) continue;
    body.hasElements = true;
    body.elements = taker.elements;
    AddNames(table, body);
    bodies.push_back(std::move(body));
  }
}

}  // namespace

BodyList LoadBodies() {
  BodyList bodies;
  AddKnownBodies(bodies);
  AddMoons(bodies);
  AddTable("catalogs:asteroids.txt", FourCC("astr"), bodies);
  AddTable("catalogs:comets.txt", FourCC("comt"), bodies);
  return bodies;
}

std::string GetBodyLabel(const SkyBody& body) {
  if (!body.names.empty()) return body.names.front();
  return ToUtf8(GetPlanetOrMoonName(body.id));
}

ObjectTraits GetTraits(const SkyBody& body, float code) {
  ObjectTraits traits;
  traits.code = code;
  traits.colour = traits.size = std::numeric_limits<float>::quiet_NaN();
  traits.number = body.id.number;
  return traits;
}

int FindBody(const BodyList& bodies, const SSO_ID& id) {
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    if (bodies[i].id == id) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace scene
