// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The binary files of a data root as they lie on the disk, whole or damaged: docs/formats/object_articles.md,
// flight_objects.md, sky_images.md.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace skydata {

inline constexpr int kArticleSize = 12;  // bytes of a record

struct ArticleRecord {
  int kind = 0, number = 0, article = 0;
};

// The whole records.
std::vector<ArticleRecord> DecodeArticles(const std::string& bytes);

// A group of the distances table; a count may promise more numbers than there are.
struct DistanceNumbers {
  int kind = 0;
  unsigned count = 0;
  std::vector<int> numbers;
};
struct DistanceTable {
  std::vector<DistanceNumbers> groups;
  int restSize = 0;  // bytes at the end that are no whole head of a group, or no whole number
};
DistanceTable DecodeDistances(const std::string& bytes);

struct ImageRecord {
  std::string id;              // four bytes
  std::array<int, 8> corners;  // right ascension and declination, four times, in 1/100000 degree
};
struct ImageList {
  bool hasCount = false;
  int count = 0;
  std::vector<ImageRecord> images;  // those that are whole, `count` at most
  int restSize = 0;                 // bytes behind them
};
ImageList DecodeImages(const std::string& bytes);

inline constexpr double kImageUnitsPerDegree = 100000.0;

}  // namespace skydata
