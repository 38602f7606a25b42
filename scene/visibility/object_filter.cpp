// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/object_filter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>

#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/zoom_dependence.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::BaseQuery;
using CommonInterfaces::FieldIds;
using CommonInterfaces::kIdentifierCondition;
using CommonInterfaces::kLabelListCondition;
using CommonInterfaces::TQuery;
using QueryList = CommonInterfaces::TBaseList<BaseQuery*>;

// What the queries that skyview knows are about.
struct KnownQuery {
  int nameId;
  unsigned condition;
  Quantity quantity;
};

const KnownQuery* FindKnown(const BaseQuery& query) {
  static const KnownQuery known[] = {
      {FieldIds::VisMagnitude, kRangeCondition, Quantity::kMagnitude},
      {FieldIds::ColorIndexBV, kRangeCondition, Quantity::kColour},
      {FieldIds::LargestDimension, kRangeCondition, Quantity::kSize},
      {FieldIds::CatalogType, kSwitchesCondition, Quantity::kCatalogs},
      {FieldIds::SpectrType, kLabelListCondition, Quantity::kClass},
      {FieldIds::SpectrTypeUndef, kUndefinedCondition, Quantity::kClass},
      {FieldIds::LuminosityUndef, kUndefinedCondition, Quantity::kLuminosity},
      {FieldIds::Type, kLabelListCondition, Quantity::kClass},
      {GetUniqueID(CommonInterfaces::kIdentifierQueryName), kIdentifierCondition, Quantity::kNumber}};
  for (const auto& entry : known) {
    if (entry.nameId == query.m_NameId && entry.condition == query.m_Condition) return &entry;
  }
  return nullptr;
}

template <class T>
bool TakeValues(const BaseQuery& query, std::vector<double>& values) {
  const auto* typed = dynamic_cast<const TQuery<T>*>(&query);
  if (!typed) return false;
  for (const T value : typed->m_Values) values.push_back(static_cast<double>(value));
  return true;
}

std::vector<double> GetValues(const BaseQuery& query) {
  std::vector<double> values;
  TakeValues<char>(query, values) || TakeValues<unsigned char>(query, values) ||
      TakeValues<short>(query, values) || TakeValues<unsigned short>(query, values) ||
      TakeValues<int>(query, values) || TakeValues<unsigned>(query, values) ||
      TakeValues<float>(query, values) || TakeValues<double>(query, values);
  return values;
}

// Within what a float holds; a bound beyond it bounds nothing.
float ToFloat(double value) {
  constexpr double kMost = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kMost, kMost));
}

bool TakeRange(const std::vector<double>& values, FilterRule& rule) {
  if (values.size() < 2 || std::isnan(values[0]) || std::isnan(values[1])) return false;
  // Computed as the catalogs compute their codes, so that a bound that equals a magnitude includes it.
  const auto bound = [&rule](double value) {
    if (rule.quantity != Quantity::kMagnitude) return ToFloat(value);
    return ToFloat((value + CommonInterfaces::kMagCodeOffset) * CommonInterfaces::kMagCodesPerMag);
  };
  rule.least = bound(values[0]);
  rule.most = bound(values[1]);
  return true;
}

bool TakeClass(double value, FilterRule& rule) {
  if (!(value >= 0.0 && value <= 255.0)) return false;
  rule.wanted = static_cast<unsigned>(value);
  return true;
}

unsigned SwitchBits(const std::vector<double>& values) {
  unsigned bits = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(values.size(), 8); ++i) {
    if (values[i] != 0.0) bits |= 1u << i;
  }
  return bits;
}

bool PassesRange(const FilterRule& rule, float value) {
  return std::isnan(value) ? rule.unknownPasses : value >= rule.least && value <= rule.most;
}

bool PassesClass(const FilterRule& rule, unsigned char cls) {
  if (cls == ObjectTraits::kNoClass) return rule.unknownPasses;
  return rule.condition == kUndefinedCondition || cls == rule.wanted;
}

}  // namespace

std::string GetFieldTitle(int nameId) {
  if (const char* name = CommonInterfaces::FindFieldName(nameId)) return name;
  char text[16];
  std::snprintf(text, sizeof text, "@%08X", static_cast<unsigned>(nameId));
  return text;
}

std::string GetCodeText(int code) {
  const auto bits = static_cast<unsigned>(code);
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) text.push_back(static_cast<char>(bits >> shift & 0xFF));
  return text;
}

bool FilterRule::Passes(const ObjectTraits& traits) const {
  switch (quantity) {
    case Quantity::kMagnitude:
      return PassesRange(*this, traits.code);
    case Quantity::kColour:
      return PassesRange(*this, traits.colour);
    case Quantity::kSize:
      return PassesRange(*this, traits.size);
    case Quantity::kCatalogs:
      return (traits.catalogs & wanted) != 0;
    case Quantity::kLuminosity:
      return PassesClass(*this, traits.luminosity);
    default:
      return PassesClass(*this, traits.cls);
  }
}

bool ObjectFilter::Passes(const FilterRule& rule, const ObjectTraits& traits) const {
  return rule.quantity == Quantity::kNumber
             ? std::binary_search(m_Numbers.begin(), m_Numbers.end(), traits.number)
             : rule.Passes(traits);
}

bool ObjectFilter::Passes(const ObjectTraits& traits) const {
  for (const auto& rule : m_Rules) {
    if (!Passes(rule, traits)) return false;
  }
  return true;
}

bool ObjectFilter::MakeRule(const BaseQuery& query, FilterRule& rule) {
  const KnownQuery* known = FindKnown(query);
  if (!known) return false;
  const std::vector<double> values = GetValues(query);
  rule = {query.m_NameId, query.m_Condition, known->quantity, 0.0f, 0.0f, 0, false};
  if (values.empty()) return false;
  switch (query.m_Condition) {
    case kRangeCondition:
      return TakeRange(values, rule);
    case kSwitchesCondition:
      rule.wanted = SwitchBits(values);
      return true;
    case kUndefinedCondition:
      rule.unknownPasses = values[0] != 0.0;
      return true;
    case kLabelListCondition:
      return TakeClass(values[0], rule);
    default:
      return TakeNumbers(query);
  }
}

bool ObjectFilter::TakeNumbers(const BaseQuery& query) {
  const auto* numbers = dynamic_cast<const TQuery<int>*>(&query);
  if (!numbers) return false;
  m_Numbers = numbers->m_Values;
  std::sort(m_Numbers.begin(), m_Numbers.end());
  return true;
}

// A field that lets unknown objects pass says so for all rules about its quantity.
void ObjectFilter::LetUnknownPass() {
  for (const auto& undefined : m_Rules) {
    if (undefined.condition != kUndefinedCondition || !undefined.unknownPasses) continue;
    for (auto& rule : m_Rules) {
      if (rule.quantity == undefined.quantity && rule.condition != kUndefinedCondition)
        rule.unknownPasses = true;
    }
  }
}

void ObjectFilter::Compile(const QueryList& queries, int section) {
  m_Rules.clear();
  m_Numbers.clear();
  for (const BaseQuery* query : queries) {
    if (query->m_Condition == kNoCondition) continue;
    FilterRule rule{};
    if (MakeRule(*query, rule)) {
      m_Rules.push_back(rule);
    } else {
      PrintDebugString("Filter %s of the section %s is not one that can be applied (condition %u)\n",
                       GetFieldTitle(query->m_NameId).c_str(), GetCodeText(section).c_str(),
                       query->m_Condition);
    }
  }
  LetUnknownPass();
}

ObjectFilters::ObjectFilters() {
  for (const char* kind :
       {"star", "clst", "gala", "nebu", "dsnv", "cnst", "plnt", "moon", "astr", "comt", "scft"}) {
    m_Entries.push_back({GetFOURCC(kind), ObjectFilter()});
  }
}

void ObjectFilters::Refresh(CommonInterfaces::SettingsData& settings) {
  for (auto& entry : m_Entries) {
    const auto section = static_cast<unsigned>(entry.kind);
    if (!settings.IsSectionChanged(section)) continue;
    const std::unique_ptr<QueryList> queries(
        static_cast<QueryList*>(settings.CreateQueryList(entry.kind, false)));
    if (!queries) continue;
    entry.filter.Compile(*queries, entry.kind);
    settings.SetSectionChanged(section, false);
    // All other queries belong to the fields; this one belongs to nobody, and no other list holds it.
    if (!queries->empty() && CommonInterfaces::IsIdentifierQuery(*queries->back())) delete queries->back();
  }
}

const ObjectFilter& ObjectFilters::Get(int kind) const {
  static const ObjectFilter none;
  for (const auto& entry : m_Entries) {
    if (entry.kind == kind) return entry.filter;
  }
  return none;
}

const ObjectFilters& ObjectFilters::None() {
  static const ObjectFilters none;
  return none;
}

}  // namespace scene
