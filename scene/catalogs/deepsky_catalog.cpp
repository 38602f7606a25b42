// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/deepsky_catalog.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "common_interfaces/field_names.h"
#include "common_interfaces/zoom_dependence.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

constexpr float kUnknown = std::numeric_limits<float>::quiet_NaN();
constexpr double kMissing = std::numeric_limits<double>::infinity();

const int kPositionAngle = GetUniqueID("PositionAngle");  // a column of these tables alone

float MakeCode(double magnitude) {
  return static_cast<float>((magnitude + CommonInterfaces::kMagCodeOffset) *
                            CommonInterfaces::kMagCodesPerMag);
}

unsigned char CatalogBits(std::string_view designation, int messier) {
  unsigned bits = 0;
  if (messier > 0) bits |= kInMessier;
  if (designation.starts_with("NGC")) bits |= kInNgc;
  if (designation.starts_with("IC")) bits |= kInIc;
  return static_cast<unsigned char>(bits == 0 ? unsigned{kInNoCatalog} : bits);
}

// The objects of one table after the other, and their texts one behind the other.
class Collector {
 public:
  // False for a record that makes no object.
  bool Add(const CatalogTable& table, DeepskyTable from, int record);
  // Hands over the texts.
  void Finish(DeepskyCatalog& catalog);

 private:
  struct Texts {
    std::size_t label, designation, properName;  // where they begin
  };
  std::size_t AddText(std::string_view text);

  std::vector<DeepskyObject> m_Objects;
  std::vector<Texts> m_ObjectTexts;
  std::string m_Texts = std::string(1, '\0');
};

std::size_t Collector::AddText(std::string_view text) {
  if (text.empty()) return 0;
  const std::size_t begin = m_Texts.size();
  m_Texts.append(text).push_back('\0');
  return begin;
}

bool Collector::Add(const CatalogTable& table, DeepskyTable from, int record) {
  const double ra = FieldNumber(table, FieldIds::RA, kMissing),
               dec = FieldNumber(table, FieldIds::Dec, kMissing),
               magnitude = FieldNumber(table, FieldIds::VisMagnitude, kMissing);
  const bool hasMagnitude = magnitude < 99.0;
  if (!(ra + dec < kMissing) || (from == kMessierTable && !hasMagnitude)) return false;
  const int messier = FieldInteger(table, FieldIds::MessierNumber, 0);
  const std::string_view designation = FieldText(table, FieldIds::NGC_ICnumber),
                         properName = FieldText(table, FieldIds::ProperName);
  const float largest = static_cast<float>(FieldNumber(table, FieldIds::LargestDimension, 0.0)),
              smallest = static_cast<float>(FieldNumber(table, FieldIds::SmallestDimension, 0.0));
  m_Objects.push_back(
      {MakeDirection(ra, dec), hasMagnitude ? MakeCode(magnitude) : GetCodeOfSize(largest, smallest),
       GetFOURCC(FieldText(table, FieldIds::Type)), FieldInteger(table, FieldIds::Number, -1), largest,
       smallest, static_cast<float>(FieldNumber(table, kPositionAngle, static_cast<double>(kUnknown))),
       record, from, CatalogBits(designation, messier), hasMagnitude, nullptr, nullptr, nullptr});
  Texts texts = {0, AddText(designation), AddText(properName)};
  texts.label = messier > 0           ? AddText("M" + std::to_string(messier))
                : designation.empty() ? texts.properName
                                      : texts.designation;
  m_ObjectTexts.push_back(texts);
  return true;
}

void Collector::Finish(DeepskyCatalog& catalog) {
  std::vector<std::pair<float, std::size_t>> order;
  order.reserve(m_Objects.size());
  for (const auto& object : m_Objects) order.emplace_back(object.code, order.size());
  std::sort(order.begin(), order.end());
  catalog.texts = std::make_shared<const std::string>(std::move(m_Texts));
  const char* const texts = catalog.texts->c_str();
  catalog.objects.clear();
  catalog.objects.reserve(m_Objects.size());
  for (const auto& [code, i] : order) {
    DeepskyObject& object = catalog.objects.emplace_back(m_Objects[i]);
    object.label = texts + m_ObjectTexts[i].label;
    object.designation = texts + m_ObjectTexts[i].designation;
    object.properName = texts + m_ObjectTexts[i].properName;
  }
}

// The number of Messier's list that a record carries, 0 for none.
int ReadMessier(const CatalogTable& table) {
  constexpr double kMost = 9999.0;
  const double number = FieldNumber(table, FieldIds::MessierNumber, 0.0);
  return number >= 1.0 && number <= kMost ? static_cast<int>(number) : 0;
}

}  // namespace

float GetCodeOfSize(float largest, float smallest) {
  constexpr double kSurface = 23.0, kFaintest = 16.0;      // magnitudes a square second of arc, magnitude
  constexpr double kSeconds = 3600.0 / kRadiansPerDegree;  // of arc in a radian
  if (!(largest > 0.0f)) return MakeCode(kFaintest);
  const double a = static_cast<double>(largest) * kSeconds,
               b = smallest > 0.0f ? static_cast<double>(smallest) * kSeconds : a;
  return MakeCode(std::min(kSurface - 2.5 * std::log10(0.25 * kPi * a * b), kFaintest));
}

const char* DeepskyObject::GetLabel(const LabelRules& rules) const {
  if (rules.commonName && *properName) return properName;
  return rules.ngcFirst && *designation ? designation : label;
}

ObjectTraits GetTraits(const DeepskyObject& object) {
  constexpr unsigned kSubTypeShift = 24;
  const auto subType = static_cast<unsigned char>(static_cast<unsigned>(object.number) >> kSubTypeShift);
  return {object.hasMagnitude ? object.code : kUnknown,
          kUnknown,
          object.largest > 0.0f ? object.largest : kUnknown,
          subType == 0 ? ObjectTraits::kNoClass : subType,
          object.catalogs,
          object.number};
}

void DeepskyCatalog::Fill() {
  CatalogTable &messier = tables[kMessierTable], &ngc = tables[kNgcTable];
  Collector collector;
  int left = 0;
  messierRecords.clear();
  for (int record = 0; record < messier.GetCount(); ++record) {
    messier.Select(record);
    const bool isObject = collector.Add(messier, kMessierTable, record);
    if (isObject) messierRecords.emplace(ReadMessier(messier), -1);
    left += !isObject;
  }
  for (int record = 0; record < ngc.GetCount(); ++record) {
    ngc.Select(record);
    const auto listed = messierRecords.find(ReadMessier(ngc));
    if (listed != messierRecords.end() && listed->first > 0) {
      listed->second = record;
    } else {
      left += !collector.Add(ngc, kNgcTable, record);
    }
  }
  if (left > 0) PrintDebugString("Deep sky: %d records without position or magnitude left out\n", left);
  collector.Finish(*this);
  for (DeepskyObject& object : objects) {
    if (const CatalogTable* further = SelectFurther(object))
      object.positionAngle =
          static_cast<float>(FieldNumber(*further, kPositionAngle, static_cast<double>(kUnknown)));
  }
}

CatalogTable& DeepskyCatalog::SelectRecord(const DeepskyObject& object) {
  tables[object.table].Select(object.record);
  return tables[object.table];
}

CatalogTable* DeepskyCatalog::SelectFurther(const DeepskyObject& object) {
  if (object.table != kMessierTable) return nullptr;
  const auto found = messierRecords.find(ReadMessier(SelectRecord(object)));
  if (found == messierRecords.end() || found->second < 0) return nullptr;
  tables[kNgcTable].Select(found->second);
  return &tables[kNgcTable];
}

}  // namespace scene
