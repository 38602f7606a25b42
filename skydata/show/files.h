// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The records of each kind of data file. What cannot be read is left out and counted.
#pragma once

#include <string>

#include "skydata/files/data_kinds.h"
#include "skydata/show/table.h"

namespace skydata {

ShownTable ShowPlanets(const std::string& bytes);
ShownTable ShowList(const std::string& bytes);  // favourites, selection, chosen objects
ShownTable ShowFlightList(const std::string& bytes);
ShownTable ShowPanoramas(const std::string& bytes);
ShownTable ShowObservationTimes(const std::string& bytes);
ShownTable ShowYearLimits(const std::string& bytes);
ShownTable ShowArticles(const std::string& bytes);
ShownTable ShowDistances(const std::string& bytes);
ShownTable ShowImages(const std::string& bytes);
ShownTable ShowDeepskyImages(const std::string& bytes);
ShownTable ShowCatalog(const std::string& bytes);
ShownTable ShowTwoLineElements(const std::string& bytes);
// The bands of a tile catalog, and the stars of one of its cells. What is no tile catalog, and a cell that is
// not there, throws std::runtime_error with one line.
ShownTable ShowStarBands(const std::string& path);
ShownTable ShowStarCell(const std::string& path, int band, unsigned cell);
// Its stars, their numbers and where they come from: two lines.
std::string DescribeStarTiles(const std::string& path);
// How bright a map of the sky is at each hour of right ascension and every 15 degrees of declination, 0 to
// 255, and two lines about it. What is no map throws std::runtime_error with one line.
ShownTable ShowSkyMap(const std::string& path);
std::string DescribeSkyMap(const std::string& path);
// What prepared catalogs hold. What is none, or damaged, throws std::runtime_error with one line.
ShownTable ShowPreparedSky(const std::string& path);
ShownTable ShowSettings(const std::string& bytes);
// The meteor showers of a string table in the language of its folder.
ShownTable ShowShowers(const std::string& path);

}  // namespace skydata
