// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The kinds of files that a data root or a work area holds, and where each stands.
#pragma once

#include <string>
#include <vector>

namespace skydata {

enum class DataKind {
  kUnknown,
  kStrings,
  kSettings,
  kYearLimits,
  kCatalogTable,
  kTwoLineElements,
  kStarTiles,
  kSkyMap,
  kPreparedSky,
  kPlanets,
  kObservationTimes,
  kArticles,
  kDistances,
  kFlightList,
  kConstellationImages,
  kMilkyWayImages,
  kDeepskyImages,
  kPanoramas,
  kFavourites,
  kChosen,
  kSelection,
  kHomes,
  kGazetteer,
  kNote,    // text for people: *.md
  kOthers,  // what other programs read: pictures, time zones
};

struct DataKindName {
  DataKind kind;
  const char* name;  // as --as takes it
};

// The kinds that can be shown.
const std::vector<DataKindName>& GetDataKindNames();

// The kind of the file with this name below a data root, wherever it stands there.
DataKind KindOfName(const std::string& name);

// Whether its readers look for the file at this place: true for kinds without a place of their own.
bool IsInPlace(const std::string& name);

// The place where the readers look for the file of that last name, "" for none.
std::string FindPlace(const std::string& name);

}  // namespace skydata
