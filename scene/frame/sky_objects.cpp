// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_objects.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "scene/display/star_signs.h"
#include "scene/display/star_tint.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::DeepskyOutput;
using CommonInterfaces::StarOutput;

constexpr unsigned kPoolBlockSize = 1u << 16;  // bytes

// Blocks enough for a record of every object that a frame can show; they are allocated when they are first
// needed.
unsigned PoolBlockCount(const SkyCatalogs& catalogs, std::size_t tileStars) {
  constexpr std::size_t usable = kPoolBlockSize - CommonInterfaces::OutputPool::kReservedBytes;
  const auto blocks = [](std::size_t count, std::size_t size) { return count / (usable / size) + 1; };
  return static_cast<unsigned>(
      blocks(static_cast<std::size_t>(catalogs.stars.GetCount()) + tileStars, sizeof(StarOutput)) +
      blocks(catalogs.deepsky.size(), sizeof(DeepskyOutput)));
}

double AngleFromAxis(const ViewGeometry& geometry, const tPoint<double>& p) {
  const double x = p.x - geometry.width * 0.5, y = p.y - geometry.height * 0.5;
  return 2.0 * std::atan(std::sqrt(x * x + y * y) / geometry.scale);
}

CommonInterfaces::ScreenPlace MakePlace(const ViewGeometry& geometry, const tPoint<double>& p,
                                        double radius) {
  return {static_cast<float>(p.x), static_cast<float>(p.y), static_cast<float>(radius),
          static_cast<float>(AngleFromAxis(geometry, p))};
}

// The direction in the picture in which the larger axis of an object lies, from the x axis downwards. Where
// the position angle is unknown all symbols lie alike.
float FindSymbolAngle(const ViewGeometry& geometry, const ObjectPlace& place, float positionAngle) {
  constexpr float kUnknown = static_cast<float>(-25.0 * kRadiansPerDegree);
  constexpr double kStep = 1e-4;  // radians
  if (std::isnan(positionAngle)) return kUnknown;
  const double north = kStep * std::cos(static_cast<double>(positionAngle)),
               east = kStep * std::sin(static_cast<double>(positionAngle));
  const double* v = place.apparent.v;
  const double aside = std::max(std::hypot(v[0], v[1]), 1e-12);
  const Direction along =
      Normalised({{v[0] - east * v[1] / aside - north * v[0] * v[2] / aside,
                   v[1] + east * v[0] / aside - north * v[1] * v[2] / aside, v[2] + north * aside}});
  const tPoint<double> p = geometry.Project(along, SkyFrameOf::kJ2000);
  return static_cast<float>(std::atan2(place.pixel.y - p.y, p.x - place.pixel.x));
}

// What the sky hides does not go at once: it fades over the last magnitude of what it loses.
float FindSymbolOpacity(float code, float dim, const ClassLimits& limits) {
  constexpr float kFade = 10.0f;
  const float rest = limits.draw - code - dim, fade = std::min(dim, kFade);
  return limits.Opacity(code + dim) * (rest < fade ? std::max(rest, 0.0f) / fade : 1.0f);
}

// A wide view of the screen would be full of them.
unsigned FindSigns(const ViewGeometry& geometry, const ObjectTests& tests) {
  constexpr double kScreenFrom = 4.0;
  const StyleRules& rules = GetStyleRules(tests.GetStyle());
  return rules.symbols && (rules.starSigns || geometry.camera.GetZoom() >= kScreenFrom) ? tests.GetSigns()
                                                                                        : 0;
}

// Which labels come first: of objects of Messier's list that have a name, of others with one, of the list, of
// the rest.
int FindLabelRank(const DeepskyObject& object) {
  return (*object.properName ? 0 : 2) + ((object.catalogs & kInMessier) != 0 ? 0 : 1);
}

}  // namespace

double GetSymbolRadius(const DeepskyObject& object, const ViewGeometry& geometry, const ClassLimits& limits) {
  constexpr double kFaintest = 2.5, kBright = 5.0, kMost = 2000.0;  // pixels
  constexpr float kBrightFrom = 30.0f;                              // codes brighter than the limit
  const float part = std::clamp((limits.draw - object.code) / kBrightFrom, 0.0f, 1.0f);
  const double least = kFaintest + (kBright - kFaintest) * static_cast<double>(part);
  return std::clamp(0.5 * geometry.camera.VisRad2PixD(object.largest), least * geometry.unit,
                    kMost * geometry.unit);
}

SkyObjects::SkyObjects(const SkyCatalogs& catalogs)
    : m_Catalogs(catalogs),
      m_TileStars(catalogs),
      m_Pool(kPoolBlockSize, PoolBlockCount(catalogs, m_TileStars.GetCapacity())) {
  m_Stars.reserve(static_cast<std::size_t>(catalogs.stars.GetCount()) + m_TileStars.GetCapacity());
  m_Deepsky.reserve(catalogs.deepsky.size());
  m_StarLabels.reserve(LabelPlacer::kMaxLabels);
  m_Turns.reserve(std::max(static_cast<std::size_t>(catalogs.stars.GetCount()), catalogs.deepsky.size()));
  std::size_t marked = 0;
  for (int i = 0; i < catalogs.stars.GetCount(); ++i) marked += catalogs.stars.GetMarks(i) != 0;
  m_Signed.reserve(marked);
}

void SkyObjects::Compute(const ViewGeometry& geometry, const ObjectTests& tests) {
  ++m_Number;
  m_PoolExhausted = false;
  m_Pool.clear(false);
  m_Stars.clear();
  m_Deepsky.clear();
  m_Signed.clear();
  m_Signs = 0;
  m_Wanted = FindSigns(geometry, tests);
  AddStars(geometry, tests);
  AddDeepsky(geometry, tests);
}

void SkyObjects::PlaceLabels(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels) {
  KeepNotableClear(geometry, GetStyleRules(tests.GetStyle()), labels);
  for (const auto& drawn : m_Deepsky) {
    const auto& place = drawn.output->m_Place;
    if (LabelOrder::IsAimedAt(geometry, place.x, place.y)) LabelDeepskyObject(geometry, tests, drawn, labels);
  }
  LabelStars(geometry, tests, labels);
  LabelDeepsky(geometry, tests, labels);
}

// The catalog begins with the brightest star: behind the first one that is too faint there is no other. Stars
// of tile catalogs come in between where their magnitude has its place.
void SkyObjects::AddStars(const ViewGeometry& geometry, const ObjectTests& tests) {
  const StarCatalog& stars = m_Catalogs.stars;
  const ClassLimits& limits = tests.GetStarLimits();
  m_TileStars.Find(geometry, tests);
  std::size_t next = 0;
  ObjectPlace place;
  for (int i = 0; i < stars.GetCount() && stars.GetCode(i) <= tests.GetFaintestStar(); ++i) {
    if (!tests.IsStarDrawn(i, place)) continue;
    while (next < m_TileStars.GetCount() && m_TileStars.Get(next).star.GetCode() < stars.GetCode(i))
      AddTileStar(geometry, m_TileStars.Get(next++), limits);
    AddBrightStar(geometry, tests, place, i);
  }
  while (next < m_TileStars.GetCount()) AddTileStar(geometry, m_TileStars.Get(next++), limits);
}

void SkyObjects::AddBrightStar(const ViewGeometry& geometry, const ObjectTests& tests,
                               const ObjectPlace& place, int star) {
  const StarCatalog& stars = m_Catalogs.stars;
  if (auto* output = MakeStarOutput(geometry, place.pixel, place.radius)) {
    AddSigns(geometry, place, star);
    m_Stars.push_back({output, star, stars.GetNumber(star),
                       tests.GetStarLimits().Opacity(stars.GetCode(star) + place.dim),
                       stars.GetSpectrum(star)});
  }
}

// Dots that are too small for a sign to be told from have none.
void SkyObjects::AddSigns(const ViewGeometry& geometry, const ObjectPlace& place, int star) {
  constexpr double kLeast = 1.25;  // radius, pixels of the standard picture
  const unsigned marks = m_Catalogs.stars.GetMarks(star) & m_Wanted;
  if (marks == 0 || place.radius < kLeast * geometry.unit) return;
  const bool isDouble = (marks & kDoubleStar) != 0;
  m_Signed.push_back(
      {m_Stars.size(), marks,
       isDouble ? FindSymbolAngle(geometry, place, m_Catalogs.stars.GetPairAngle(star)) : 0.0f});
  m_Signs |= marks;
}

void SkyObjects::AddTileStar(const ViewGeometry& geometry, const PlacedTileStar& placed,
                             const ClassLimits& limits) {
  const StarTileRecord& star = placed.star;
  if (auto* output = MakeStarOutput(geometry, placed.pixel, placed.radius)) {
    m_Stars.push_back({output, -1, star.GetNumber(), limits.Opacity(star.GetCode() + placed.dim),
                       GetClassOfColour(star.GetColour())});
  }
}

// Null when the pool has no room.
StarOutput* SkyObjects::MakeStarOutput(const ViewGeometry& geometry, const tPoint<double>& pixel,
                                       double radius) {
  auto* output = new (m_Pool) StarOutput;
  if (!output) {
    m_PoolExhausted = true;
    return nullptr;
  }
  output->m_Frame = m_Number;
  output->m_Place = MakePlace(geometry, pixel, radius);
  output->m_OnScreen = geometry.IsInside(pixel, 0.0);
  output->m_AsDisc = radius >= 1.0;
  output->m_Drawn = true;
  return output;
}

// The catalog begins with the brightest object.
void SkyObjects::AddDeepsky(const ViewGeometry& geometry, const ObjectTests& tests) {
  ObjectPlace place;
  for (int i = 0; i < static_cast<int>(m_Catalogs.deepsky.size()); ++i) {
    if (m_Catalogs.deepsky[i].code > tests.GetFaintestDeepskyCode()) break;
    if (!tests.IsDeepskyDrawn(i, place)) continue;
    AddDeepskyObject(geometry, place, i, tests.GetDeepskyLimits(m_Catalogs.deepsky[i].kind));
  }
}

void SkyObjects::AddDeepskyObject(const ViewGeometry& geometry, const ObjectPlace& place, int object,
                                  const ClassLimits& limits) {
  const auto& entry = m_Catalogs.deepsky[object];
  auto* output = new (m_Pool) DeepskyOutput;
  if (!output) {
    m_PoolExhausted = true;
    return;
  }
  const double major = GetSymbolRadius(entry, geometry, limits);
  const double ratio = entry.largest > 0.0f && entry.smallest > 0.0f ? entry.smallest / entry.largest : 1.0;
  output->m_Frame = m_Number;
  output->m_Place = MakePlace(geometry, place.pixel, major);
  output->m_OnScreen = geometry.IsInside(place.pixel, 0.0);
  output->m_MajorSize = static_cast<float>(2.0 * major);
  output->m_MinorSize = static_cast<float>(2.0 * major * std::clamp(ratio, 0.3, 1.0));
  output->m_SymbolDrawn = output->m_Drawn = true;
  m_Deepsky.push_back({output, object, FindSymbolOpacity(entry.code, place.dim, limits),
                       FindSymbolAngle(geometry, place, entry.positionAngle)});
}

// The label as the catalog has it, or with the magnitude behind it while there is room for such texts.
const char* SkyObjects::MakeStarLabel(int star, const LabelRules& rules) {
  const char* const label = m_Catalogs.stars.GetLabel(star, rules);
  if (!rules.magnitude || !*label || m_StarLabels.size() == LabelPlacer::kMaxLabels) return label;
  auto& text = m_StarLabels.emplace_back();
  // In tenths, for the decimal mark is a point in every locale.
  const int tenths = static_cast<int>(
      std::lround(10.0 * MagnitudeOfCode(static_cast<double>(m_Catalogs.stars.GetCode(star)))));
  const int length = std::snprintf(text.data(), text.size(), "%s %s%d.%d", label, tenths < 0 ? "-" : "",
                                   std::abs(tenths) / 10, std::abs(tenths) % 10);
  if (length > 0 && static_cast<std::size_t>(length) < text.size()) return text.data();
  m_StarLabels.pop_back();
  return label;
}

void SkyObjects::KeepNotableClear(const ViewGeometry& geometry, const StyleRules& style,
                                  LabelPlacer& labels) const {
  constexpr double kNotable = 2.0;  // pixels; larger discs keep labels of others away
  for (const auto& drawn : m_Stars) {
    const auto& place = drawn.output->m_Place;
    const float radius = style.GetStarRadius(place.radius, static_cast<float>(geometry.unit));
    if (radius > kNotable * geometry.unit) labels.Reserve({place.x, place.y}, radius, radius);
  }
}

// Signs stand in the order of the stars.
void SkyObjects::LabelStars(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels) {
  const StarCatalog& stars = m_Catalogs.stars;
  const StyleRules& style = GetStyleRules(tests.GetStyle());
  const LabelRules& rules = tests.GetLabels(FourCC("star"));
  const auto unit = static_cast<float>(geometry.unit);
  m_StarLabels.clear();
  if (!rules.shown) return;
  for (const LabelTurn& turn : FindStarTurns(geometry, tests)) {
    const DrawnStar& drawn = m_Stars[turn.index];
    const auto& place = drawn.output->m_Place;
    const bool proper = rules.commonName && stars.HasProperName(drawn.star);
    const float sign = HasSign(turn.index) ? kSignReach * unit : 0.0f;
    drawn.output->m_LabelIndex = labels.PlaceBeside(
        MakeStarLabel(drawn.star, rules), {place.x, place.y}, style.GetStarRadius(place.radius, unit) + sign,
        (proper ? 13.0 : 11.0) * geometry.unit, proper ? LabelKind::kStarName : LabelKind::kStarLetter,
        {FourCC("star"), drawn.number});
  }
}

const std::vector<LabelTurn>& SkyObjects::FindStarTurns(const ViewGeometry& geometry,
                                                        const ObjectTests& tests) {
  m_Turns.clear();
  for (std::size_t i = 0; i < m_Stars.size(); ++i) {
    const DrawnStar& drawn = m_Stars[i];
    if (drawn.star < 0) continue;  // nameless
    const float code = m_Catalogs.stars.GetCode(drawn.star);
    if (code > tests.GetStarLimits().label) break;
    const auto& place = drawn.output->m_Place;
    m_Turns.push_back({LabelOrder::Find(geometry, place.x, place.y, code), static_cast<unsigned>(i)});
  }
  std::sort(m_Turns.begin(), m_Turns.end());
  return m_Turns;
}

bool SkyObjects::HasSign(std::size_t drawn) const {
  const auto found =
      std::lower_bound(m_Signed.begin(), m_Signed.end(), drawn,
                       [](const SignedStar& sign, std::size_t index) { return sign.drawn < index; });
  return found != m_Signed.end() && found->drawn == drawn;
}

// Important ones first, among them by the order of all labels.
void SkyObjects::LabelDeepsky(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels) {
  constexpr float kRank = 1e4f;  // codes, more than there are
  m_Turns.clear();
  for (std::size_t i = 0; i < m_Deepsky.size(); ++i) {
    const auto& object = m_Catalogs.deepsky[static_cast<std::size_t>(m_Deepsky[i].object)];
    const auto& place = m_Deepsky[i].output->m_Place;
    m_Turns.push_back({kRank * static_cast<float>(FindLabelRank(object)) +
                           LabelOrder::Find(geometry, place.x, place.y, object.code),
                       static_cast<unsigned>(i)});
  }
  std::sort(m_Turns.begin(), m_Turns.end());
  for (const LabelTurn& turn : m_Turns) {
    const DrawnDeepsky& drawn = m_Deepsky[turn.index];
    if (drawn.output->m_LabelIndex < 0) LabelDeepskyObject(geometry, tests, drawn, labels);
  }
}

void SkyObjects::LabelDeepskyObject(const ViewGeometry& geometry, const ObjectTests& tests,
                                    const DrawnDeepsky& drawn, LabelPlacer& labels) {
  constexpr float kFaded = 0.25f;  // opacity of a symbol that has lost its label
  const auto& object = m_Catalogs.deepsky[static_cast<std::size_t>(drawn.object)];
  const LabelRules& rules = tests.GetLabels(object.kind);
  if (!rules.shown || drawn.opacity < kFaded || object.code > tests.GetDeepskyLimits(object.kind).label)
    return;
  // The outline of its image may name it already.
  int& label = drawn.output->m_LabelIndex;
  label = labels.Find(object.label, LabelKind::kImageFrame);
  if (label >= 0) return;
  const auto& place = drawn.output->m_Place;
  // An object that fills the picture has its label inside, so far from its rim that no text reaches it.
  const double inside = 0.2 * std::min(geometry.width, geometry.height);
  const double radius = static_cast<double>(place.radius);
  label =
      labels.PlaceBeside(object.GetLabel(rules), {place.x, place.y}, radius <= 2.0 * inside ? radius : inside,
                         11.0 * geometry.unit, LabelKindOfDeepsky(object.kind), {object.kind, object.number});
}

}  // namespace scene
