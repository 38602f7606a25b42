// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/prepared_parts.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace scene {

template <class File>
void Exchange(File& file, Direction& direction) {
  for (double& value : direction.v) file.Value(value);
}

template <class File>
void Exchange(File& file, NebulaOutline& outline) {
  file.Value(outline.object);
  Exchange(file, outline.centre);
  file.Value(outline.radius);
  file.Value(outline.firstArea);
  file.Value(outline.areaCount);
}

template <class File>
void Exchange(File& file, NebulaArea& area) {
  file.Value(area.level);
  file.Value(area.firstRing);
  file.Value(area.ringCount);
}

template <class File>
void Exchange(File& file, NebulaRing& ring) {
  file.Value(ring.first);
  file.Value(ring.count);
}

template <class File>
void Exchange(File& file, FigureStroke& stroke) {
  file.Value(stroke.first);
  file.Value(stroke.count);
  file.Value(stroke.constellation);
}

template <class File>
void Exchange(File& file, ConstellationName& name) {
  file.Value(name.abbreviation);
  Exchange(file, name.direction);
  file.Value(name.name);
  file.Value(name.englishName);
  file.Value(name.genitive);
  file.Value(name.localName);
}

template <class File>
void Exchange(File& file, BoundaryEdge& edge) {
  file.Value(edge.first);
  file.Value(edge.count);
  file.Value(edge.radius);
  file.Value(edge.northOrEast);
  file.Value(edge.southOrWest);
}

// A parallel of the boundaries, whose type is theirs alone.
template <class File, class Parallel>
requires requires(Parallel parallel) { parallel.endRA; }
void Exchange(File& file, Parallel& parallel) {
  file.Value(parallel.dec);
  file.Value(parallel.ra);
  file.Value(parallel.endRA);
  file.Value(parallel.north);
  file.Value(parallel.south);
}

namespace {

// A member that nobody writes would be lost: these are the sizes with all those that are written.
constexpr std::size_t kVector = sizeof(std::vector<int>);
static_assert(sizeof(void*) != 8 ||
              (sizeof(NebulaOutline) == 48 && sizeof(NebulaArea) == 12 && sizeof(NebulaRing) == 8 &&
               sizeof(FigureStroke) == 12 && sizeof(BoundaryEdge) == 24 && sizeof(DeepskyObject) == 80 &&
               sizeof(StarCatalog) == 14 * kVector + sizeof(std::string) + 8 &&
               sizeof(NebulaOutlines) == 4 * kVector && sizeof(ConstellationBounds) == 3 * kVector));

// Where a text begins among those of its catalog.
struct TextPlaces {
  std::uint32_t label = 0, designation = 0, properName = 0;
};

// A deep-sky object as it lies in the file, where a pointer is an offset.
struct PlacedObject {
  DeepskyObject object{};
  TextPlaces texts;
};

template <class File>
void ExchangeFlag(File& file, bool& flag) {
  auto byte = static_cast<unsigned char>(flag);
  file.Value(byte);
  flag = byte != 0;
}

}  // namespace

template <class File>
void Exchange(File& file, PlacedObject& placed) {
  DeepskyObject& object = placed.object;
  Exchange(file, object.direction);
  file.Value(object.code);
  file.Value(object.kind);
  file.Value(object.number);
  file.Value(object.largest);
  file.Value(object.smallest);
  file.Value(object.positionAngle);
  file.Value(object.record);
  file.Value(object.table);
  file.Value(object.catalogs);
  ExchangeFlag(file, object.hasMagnitude);
  file.Value(placed.texts.label);
  file.Value(placed.texts.designation);
  file.Value(placed.texts.properName);
}

template <class File>
void PreparedParts::ExchangeStars(File& file, StarCatalog& stars) {
  file.Items(stars.m_Codes);
  file.Items(stars.m_Directions);
  file.Items(stars.m_Motions);
  file.Items(stars.m_Spectra);
  file.Items(stars.m_Numbers);
  file.Items(stars.m_Colours);
  file.Items(stars.m_Catalogs);
  file.Items(stars.m_Luminosities);
  file.Items(stars.m_Marks);
  file.Items(stars.m_PairAngles);
  file.Items(stars.m_Records);
  file.Items(stars.m_ProperNames);
  file.Items(stars.m_Letters);
  file.Items(stars.m_Designations);
  file.Value(stars.m_Texts);
  file.Value(stars.m_MaxMotion);
}

template <class File>
void PreparedParts::ExchangeDeepsky(File& file, DeepskyCatalog& deepsky) {
  std::string texts = deepsky.texts ? *deepsky.texts : "";
  std::vector<PlacedObject> objects(deepsky.size());
  for (std::size_t i = 0; i < deepsky.size(); ++i) {
    const char* const begin = deepsky.texts->c_str();
    const DeepskyObject& object = deepsky[i];
    const auto place = [begin](const char* text) { return static_cast<std::uint32_t>(text - begin); };
    objects[i] = {object, {place(object.label), place(object.designation), place(object.properName)}};
  }
  std::vector<int> messier;
  for (const auto& [number, record] : deepsky.messierRecords) messier.insert(messier.end(), {number, record});
  file.Value(texts);
  file.Items(objects);
  file.Items(messier);
  if constexpr (File::kReads) {
    deepsky.texts = std::make_shared<const std::string>(std::move(texts));
    deepsky.objects.reserve(objects.size());
    for (PlacedObject& placed : objects) {
      const auto find = [&deepsky](std::uint32_t place) {
        return place <= deepsky.texts->size() ? deepsky.texts->c_str() + place : nullptr;
      };
      DeepskyObject& object = deepsky.objects.emplace_back(placed.object);
      object.label = find(placed.texts.label);
      object.designation = find(placed.texts.designation);
      object.properName = find(placed.texts.properName);
    }
    for (std::size_t i = 0; i + 1 < messier.size(); i += 2)
      deepsky.messierRecords.emplace(messier[i], messier[i + 1]);
  }
}

template <class File>
void PreparedParts::ExchangeBounds(File& file, ConstellationBounds& bounds) {
  file.Items(bounds.m_Points);
  file.Items(bounds.m_Edges);
  file.Items(bounds.m_Parallels);
}

template <class File>
void PreparedParts::ExchangeAll(File& file, PreparedSky part, SkyCatalogs& catalogs) {
  if (part == PreparedSky::kStars) {
    ExchangeStars(file, catalogs.stars);
    file.Items(catalogs.figurePoints);
    file.Items(catalogs.figures);
    file.Items(catalogs.constellations);
    ExchangeBounds(file, catalogs.bounds);
  } else {
    ExchangeDeepsky(file, catalogs.deepsky);
    file.Items(catalogs.nebulaOutlines.outlines);
    file.Items(catalogs.nebulaOutlines.areas);
    file.Items(catalogs.nebulaOutlines.rings);
    file.Items(catalogs.nebulaOutlines.points);
  }
}

void PreparedParts::Write(PreparedSky part, SkyCatalogs& catalogs, PreparedWriter& file) {
  ExchangeAll(file, part, catalogs);
}
void PreparedParts::Read(PreparedSky part, SkyCatalogs& catalogs, PreparedReader& file) {
  ExchangeAll(file, part, catalogs);
}

namespace {

bool IsDirection(const Direction& direction) {
  constexpr double kMost = 1.001;
  return std::fabs(direction.v[0]) <= kMost && std::fabs(direction.v[1]) <= kMost &&
         std::fabs(direction.v[2]) <= kMost;
}

bool AreDirections(const std::vector<Direction>& directions) {
  return std::all_of(directions.begin(), directions.end(), IsDirection);
}

// Whether `count` from `first` on are among so many.
bool IsRun(int first, int count, std::size_t of) {
  return first >= 0 && count >= 0 && static_cast<std::size_t>(first) <= of &&
         static_cast<std::size_t>(count) <= of - static_cast<std::size_t>(first);
}

// An index among so many, or -1.
bool IsIndexOrNone(int index, std::size_t of) { return index >= -1 && index < static_cast<std::int64_t>(of); }

bool IsAngle(double angle) { return std::fabs(angle) <= 2.0 * kPi; }

// Finite, and the brightest first.
template <class Items, class GetCode>
bool RiseInOrder(const Items& items, GetCode getCode) {
  float before = -1e6f;
  for (const auto& item : items) {
    const float code = getCode(item);
    if (!(code >= before && code < 1e6f)) return false;
    before = code;
  }
  return true;
}

}  // namespace

bool PreparedParts::IsSound(const StarCatalog& stars) {
  const std::size_t count = stars.m_Codes.size();
  for (const std::size_t size :
       {stars.m_Directions.size(), stars.m_Motions.size(), stars.m_Spectra.size(), stars.m_Numbers.size(),
        stars.m_Colours.size(), stars.m_Catalogs.size(), stars.m_Luminosities.size(), stars.m_Marks.size(),
        stars.m_PairAngles.size(), stars.m_Records.size(), stars.m_ProperNames.size(), stars.m_Letters.size(),
        stars.m_Designations.size()}) {
    if (size != count) return false;
  }
  for (const auto* places : {&stars.m_ProperNames, &stars.m_Letters, &stars.m_Designations}) {
    for (const unsigned place : *places) {
      if (place > stars.m_Texts.size()) return false;
    }
  }
  return RiseInOrder(stars.m_Codes, [](float code) { return code; }) && AreDirections(stars.m_Directions) &&
         AreDirections(stars.m_Motions) && stars.m_MaxMotion >= 0.0 && stars.m_MaxMotion <= 1.0;
}

bool PreparedParts::IsSound(const DeepskyCatalog& deepsky) {
  return RiseInOrder(deepsky.objects, [](const DeepskyObject& object) { return object.code; }) &&
         std::all_of(deepsky.begin(), deepsky.end(), [](const DeepskyObject& object) {
           return IsDirection(object.direction) && object.table < kDeepskyTables && object.label &&
                  object.designation && object.properName && IsAngle(object.largest) &&
                  IsAngle(object.smallest) &&
                  (std::isnan(object.positionAngle) || IsAngle(object.positionAngle));
         });
}

bool PreparedParts::IsSound(const NebulaOutlines& all, std::size_t objects) {
  for (const NebulaOutline& outline : all.outlines) {
    if (!IsIndexOrNone(outline.object, objects) || !IsDirection(outline.centre) || !IsAngle(outline.radius) ||
        !IsRun(outline.firstArea, outline.areaCount, all.areas.size()) || outline.areaCount == 0) {
      return false;
    }
  }
  for (const NebulaArea& area : all.areas) {
    if (area.level < 1 || area.level > 3 || area.ringCount == 0 ||
        !IsRun(area.firstRing, area.ringCount, all.rings.size())) {
      return false;
    }
  }
  for (const NebulaRing& ring : all.rings) {
    if (!IsRun(ring.first, ring.count, all.points.size()) || ring.count == 0) return false;
  }
  return AreDirections(all.points);
}

bool PreparedParts::IsSound(const ConstellationBounds& bounds, std::size_t constellations) {
  for (const BoundaryEdge& edge : bounds.m_Edges) {
    if (!IsRun(edge.first, edge.count, bounds.m_Points.size()) || edge.count == 0 || !IsAngle(edge.radius) ||
        !IsIndexOrNone(edge.northOrEast, constellations) ||
        !IsIndexOrNone(edge.southOrWest, constellations)) {
      return false;
    }
  }
  for (const auto& parallel : bounds.m_Parallels) {
    if (!IsAngle(parallel.dec) || !IsAngle(parallel.ra) || !IsAngle(parallel.endRA) ||
        !IsIndexOrNone(parallel.north, constellations) || !IsIndexOrNone(parallel.south, constellations)) {
      return false;
    }
  }
  return AreDirections(bounds.m_Points);
}

bool PreparedParts::AreSound(const SkyCatalogs& catalogs) {
  const std::size_t constellations = catalogs.constellations.size();
  for (const FigureStroke& stroke : catalogs.figures) {
    if (!IsRun(stroke.first, stroke.count, catalogs.figurePoints.size()) || stroke.count == 0 ||
        !IsIndexOrNone(stroke.constellation, constellations)) {
      return false;
    }
  }
  for (const ConstellationName& name : catalogs.constellations) {
    if (!IsDirection(name.direction)) return false;
  }
  return AreDirections(catalogs.figurePoints) && IsSound(catalogs.stars) && IsSound(catalogs.deepsky) &&
         IsSound(catalogs.nebulaOutlines, catalogs.deepsky.size()) &&
         IsSound(catalogs.bounds, constellations);
}

}  // namespace scene
