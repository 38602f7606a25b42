// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/catalog_text.h"
#include "astro/constants.h"

#include <charconv>

namespace skydata {
namespace {

using astro::kRadiansPerDegree;
constexpr double kArcMinutesPerDegree = 60.0;

template <class T>
std::string FormatShortest(T value) {
  char text[64];
  const auto result = std::to_chars(text, text + sizeof text, value);
  return std::string(text, result.ptr);
}

}  // namespace

CatalogText::CatalogText(const std::string& source, const std::vector<std::string>& columns)
    : m_Bytes("# Made by skydata from " + source +
              "; origin and licence stand in the .source.md beside this file.\n") {
  for (const std::string& column : columns) AddText(column);
  EndRecord();
}

void CatalogText::BeginCell() {
  if (!m_IsFirstCell) m_Bytes += '\t';
  m_IsFirstCell = false;
}

void CatalogText::AddText(const std::string& text) {
  BeginCell();
  m_Bytes += text;
}

void CatalogText::AddInteger(int value) { AddText(std::to_string(value)); }

void CatalogText::AddDouble(double value) { AddText(FormatShortest(value)); }

void CatalogText::AddFloat(std::optional<double> value) {
  AddText(value ? FormatShortest(static_cast<float>(*value)) : std::string());
}

void CatalogText::AddAngle(double degrees) { AddDouble(degrees * kRadiansPerDegree); }

void CatalogText::AddSmallAngle(std::optional<double> arcMinutes) {
  if (arcMinutes) *arcMinutes *= kRadiansPerDegree / kArcMinutesPerDegree;
  AddFloat(arcMinutes);
}

void CatalogText::EndRecord() {
  m_Bytes += '\n';
  m_IsFirstCell = true;
}

}  // namespace skydata
