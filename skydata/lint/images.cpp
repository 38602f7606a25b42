// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The binary lists of pictures: constellations and Milky Way.
#include <algorithm>
#include <cmath>
#include <iterator>

#include "common_interfaces/sky_images.h"
#include "skydata/files/binary_tables.h"
#include "skydata/lint/rules.h"

namespace skydata {
namespace {

constexpr double kTurn = 360.0, kQuarter = 90.0;  // degrees
constexpr int kIdColumn = 1, kFirstCornerColumn = 2;

std::string ToText(double degrees) {
  char text[32];
  std::snprintf(text, sizeof text, "%.5f", degrees);
  return text;
}

// Whole degrees, where hundred-thousandths of one are wanted: then every coordinate is tiny.
bool LooksLikeDegrees(const ImageRecord& image) {
  const bool isTiny = std::all_of(image.corners.begin(), image.corners.end(),
                                  [](int value) { return std::abs(value / kTurn) <= 1.0; });
  return isTiny &&
         std::any_of(image.corners.begin(), image.corners.end(), [](int value) { return value != 0; });
}

void CheckCorners(const ImageRecord& image, int line, LintReport& report) {
  if (LooksLikeDegrees(image)) {
    report.Add(LintCode::kUnit, line, kFirstCornerColumn,
               "all corners lie within 0.0036 degrees: they look like whole degrees, wants 1/100000 degree");
    return;
  }
  for (std::size_t i = 0; i < image.corners.size(); ++i) {
    const double degrees = image.corners[i] / kImageUnitsPerDegree;
    const bool isDeclination = i % 2 == 1;
    const double least = isDeclination ? -kQuarter : 0.0, most = isDeclination ? kQuarter : kTurn;
    if (degrees >= least && degrees <= most) continue;
    report.Add(LintCode::kOutOfRange, line, kFirstCornerColumn + static_cast<int>(i),
               std::string(isDeclination ? "declination " : "right ascension ") + ToText(degrees) +
                   " degrees is not from " + ToText(least) + " to " + ToText(most));
  }
  for (std::size_t i = 2; i < image.corners.size(); i += 2) {
    if (image.corners[i] != image.corners[i - 2] || image.corners[i + 1] != image.corners[i - 1]) continue;
    report.Add(LintCode::kFlatImage, line, kFirstCornerColumn + static_cast<int>(i),
               "the corner is that before it: the picture has no area");
    return;
  }
}

bool IsPlain(const std::string& id) {
  return std::all_of(id.begin(), id.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// `labels`: those that the identifiers refer to; null for none.
void CheckId(const ImageRecord& image, int line, const std::vector<std::string>* labels,
             FirstLines<std::string>& firsts, LintReport& report) {
  if (!IsPlain(image.id)) {
    report.Add(LintCode::kBadCode, line, kIdColumn, "the identifier is not four plain characters");
    return;
  }
  if (const int first = firsts.Note(image.id, line)) {
    report.Add(LintCode::kDuplicate, line, kIdColumn,
               "'" + image.id + "' stands in picture " + std::to_string(first) + " already");
  }
  const std::string label = image.id.substr(0, image.id.find_last_not_of(' ') + 1);
  if (labels && std::find(labels->begin(), labels->end(), label) == labels->end()) {
    report.Add(LintCode::kDanglingReference, line, kIdColumn,
               "no catalog has a constellation '" + label + "'");
  }
}

void CheckLength(const ImageList& list, std::size_t size, LintReport& report) {
  const int found = static_cast<int>(list.images.size());
  if (!list.hasCount) {
    report.Add(LintCode::kFileSize, 0, 0,
               "the file has " + std::to_string(size) + " bytes, too few for the number of pictures");
  } else if (found < list.count) {
    report.Add(
        LintCode::kCount, 0, 0,
        "the file counts " + std::to_string(list.count) + " pictures and has " + std::to_string(found));
  } else if (list.restSize > 0) {
    report.Add(LintCode::kTrailingBytes, found + 1, 0,
               std::to_string(list.restSize) + " bytes behind the " + std::to_string(list.count) +
                   " pictures that the file counts");
  }
}

template <class Images>
void LintImages(const LintFile& file, const std::vector<std::string>* labels, LintRun& run) {
  LintReport report(file.name, run.findings);
  const ImageList list = DecodeImages(file.bytes);
  CheckLength(list, file.bytes.size(), report);
  FirstLines<std::string> firsts;
  int line = 0;
  for (const ImageRecord& image : list.images) {
    CheckId(image, ++line, labels, firsts, report);
    CheckCorners(image, line, report);
  }
  const Images reader;  // it says nothing of what it leaves out
  CompareCounts(static_cast<int>(std::distance(reader.GetBegin(), reader.GetEnd())), line, report);
}

}  // namespace

void LintConstellationImages(const LintFile& file, LintRun& run) {
  const auto labels = run.labels.find("Label");
  LintImages<CommonInterfaces::CSTLImages>(file, labels == run.labels.end() ? nullptr : &labels->second, run);
}

void LintMilkyWayImages(const LintFile& file, LintRun& run) {
  LintImages<CommonInterfaces::MWayImages>(file, nullptr, run);
}

}  // namespace skydata
