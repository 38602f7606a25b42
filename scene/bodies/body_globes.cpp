// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_globes.h"

#include <algorithm>
#include <cmath>

#include "astro/physical_ephemeris.h"
#include "astro/rotation.h"
#include "scene/catalogs/catalog_table.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/text.h"

namespace scene {
namespace {

const SSO_ID kSaturn(FourCC("plnt"), 6);

struct MapName {
  int number;  // of a planet or a moon
  const char* name;
};
constexpr MapName kPlanetMaps[] = {{1, "mercury"}, {2, "venus"},  {4, "mars"},
                                   {5, "jupiter"}, {6, "saturn"}, {7, "uranus"},
                                   {8, "neptune"}, {9, "pluto"},  {10, "sun"}};
constexpr MapName kMoonMaps[] = {{301, "moon"},     {501, "io"},        {502, "europa"}, {503, "ganymede"},
                                 {504, "callisto"}, {602, "enceladus"}, {605, "rhea"},   {606, "titan"},
                                 {608, "iapetus"},  {801, "triton"},    {901, "charon"}};

const char* FindMapName(const SSO_ID& id) {
  const auto find = [&id](const auto& names) -> const char* {
    for (const MapName& entry : names) {
      if (entry.number == id.number) return entry.name;
    }
    return nullptr;
  };
  if (id.kind == FourCC("plnt")) return find(kPlanetMaps);
  return id.kind == FourCC("moon") ? find(kMoonMaps) : nullptr;
}

// How much darker the limb is, as the eye has it: airless bodies hardly, deep atmospheres clearly.
float LimbDarkening(const SSO_ID& id) {
  if (id.kind == FourCC("moon")) return id.number == 606 ? 0.5f : 0.1f;
  if (id.number == kSunNumber) return 0.6f;
  return id.number == 1 || id.number == 9 ? 0.1f : id.number == 4 ? 0.3f : 0.6f;
}

// The picture where a body stands.
struct PictureAt {
  double axes[9];         // on J2000 axes: right, down, and towards the viewer
  tPoint<double> centre;  // of the disc, y up
};

// Told by steps in the sky that are as long as the body's radius. The projection keeps angles, but air
// squeezes the picture upwards: right and down are then as long as a step in the picture is in the sky, and
// the middle between the upper and the lower limb is not where the middle of the body is seen.
PictureAt FindPicture(const Direction& body, double radius, const ViewGeometry& geometry) {
  const double length = std::max(radius, 1e-5);
  const Direction any = std::fabs(body.v[2]) < 0.9 ? Direction{{0.0, 0.0, 1.0}} : Direction{{1.0, 0.0, 0.0}};
  Direction east, north;  // any two directions at right angles on the sky
  Vprod(any.v, body.v, east.v);
  east = Normalised(east);
  Vprod(body.v, east.v, north.v);
  const tPoint<double> here = geometry.Project(body, SkyFrameOf::kJ2000);
  PictureAt picture = {{}, here};
  const auto across = [&](const Direction& along) {
    const auto limb = [&](double side) {
      Direction there;
      for (int i = 0; i < 3; ++i) there.v[i] = body.v[i] + side * length * along.v[i];
      return geometry.Project(Normalised(there), SkyFrameOf::kJ2000);
    };
    const tPoint<double> to = limb(1.0), from = limb(-1.0);
    picture.centre.x += 0.5 * (to.x + from.x) - here.x;
    picture.centre.y += 0.5 * (to.y + from.y) - here.y;
    return tPoint<double>{0.5 * (to.x - from.x), 0.5 * (to.y - from.y)};
  };
  const tPoint<double> e = across(east), n = across(north);
  // What a step would be without air: the projection's own scale there.
  const double aside =
      std::hypot(here.x - 0.5 * geometry.width, here.y - 0.5 * geometry.height) / geometry.scale;
  const double step = 0.5 * geometry.scale * (1.0 + aside * aside) * length;
  const double area = e.x * n.y - e.y * n.x, part = area == 0.0 ? 0.0 : step / area;
  for (int i = 0; i < 3; ++i) {
    picture.axes[i] = part * (n.y * east.v[i] - e.y * north.v[i]);
    picture.axes[3 + i] = part * (n.x * east.v[i] - e.x * north.v[i]);
    picture.axes[6 + i] = -body.v[i];
  }
  return picture;
}

}  // namespace

BodyGlobes::BodyGlobes(const BodyList& bodies) : m_Bodies(bodies), m_Maps(bodies.size(), -1) {
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    const char* const name = FindMapName(bodies[i].id);
    if (!name) continue;
    std::string path = ZentharPath::GetPath(("media:maps/" + std::string(name) + ".jpg").c_str());
    if (path.empty()) continue;
    m_Maps[i] = static_cast<int>(m_Paths.size());
    m_Paths.push_back(std::move(path));
  }
  LoadRing();
}

void BodyGlobes::LoadRing() {
  const std::string path = ZentharPath::GetPath("catalogs:saturn_ring.txt");
  const auto shape = astro::GetBodyShape(kSaturn);
  if (path.empty() || !shape) return;
  CatalogTable table;
  if (!table.Load(path.c_str())) return PrintDebugString("%s\n", table.GetError().c_str());
  static const int kRadius = GetUniqueID("Radius"), kRed = GetUniqueID("Red"), kGreen = GetUniqueID("Green"),
                   kBlue = GetUniqueID("Blue"), kOpacity = GetUniqueID("Opacity");
  const auto byte = [&table](int field) {
    return static_cast<unsigned char>(std::clamp(FieldNumber(table, field, 0.0), 0.0, 255.0));
  };
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const auto radius = static_cast<float>(FieldNumber(table, kRadius, 0.0) / shape->a);
    if (record == 0) m_RingInner = radius;
    m_RingOuter = radius;
    m_Ring.push_back({byte(kRed), byte(kGreen), byte(kBlue), byte(kOpacity)});
  }
  if (m_RingInner > 1.0f && m_RingOuter > m_RingInner && std::isfinite(m_RingOuter)) return;
  m_Ring.clear();
  PrintDebugString("%s: holds no ring from a radius beyond Saturn's own outwards: none is drawn\n",
                   path.c_str());
}

std::optional<Globe> BodyGlobes::Find(int body, const BodyState& state, const ViewGeometry& geometry,
                                      double julianDateTT) const {
  const auto index = static_cast<std::size_t>(body);
  const SSO_ID& id = m_Bodies[index].id;
  const auto surface = astro::FindPhysicalEphemeris(id, state.seen, julianDateTT);
  const auto shape = astro::GetBodyShape(id);
  if (!surface || !shape) return std::nullopt;
  const PictureAt picture =
      FindPicture(MakeDirection(state.seen.apparent), state.seen.angularRadius, geometry);
  double toPicture[9], toBody[9];
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) toPicture[3 * row + column] = picture.axes[3 * column + row];
  }
  M3prod(surface->toBody, toPicture, toBody);
  Globe globe = {};
  std::copy(toBody, toBody + 9, globe.toBody);
  globe.centre = picture.centre;
  globe.flattening = static_cast<float>(1.0 - shape->c / shape->a);
  globe.limbDarkening = LimbDarkening(id);
  globe.map = m_Maps[index];
  globe.ringed = id == kSaturn && !m_Ring.empty();
  return globe;
}

}  // namespace scene
