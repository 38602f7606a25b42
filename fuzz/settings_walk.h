// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "common_interfaces/field_data.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "fuzz/scratch.h"

namespace fuzz {

// Reads everything a field has, into memory of exactly the size that the field states.
inline void WalkField(const CommonInterfaces::SettingField& field) {
  const unsigned width = CommonInterfaces::FieldElementWidth(field.GetType());
  const unsigned count = field.GetSize();
  std::vector<unsigned char> values(count * width + 1, 0xA5), element(width + 1, 0xA5);
  field.GetData(values.data());
  Require(values.back() == 0xA5, "GetData writes no more than the field's values");
  if (width != 0 && count != 0) {
    Require(field.GetElement(element.data(), 0) && field.GetElement(element.data(), count - 1),
            "every element up to the size can be read");
  }
  Require(!field.GetElement(element.data(), count), "the element behind the last cannot be read");
  Require(element.back() == 0xA5, "GetElement writes no more than one element");
}

// The list of a section, every value of every query, and its memory given back.
inline void WalkQueries(CommonInterfaces::SettingsData& settings, unsigned section, bool all) {
  using CommonInterfaces::BaseQuery;
  auto* queries = static_cast<CommonInterfaces::TBaseList<BaseQuery*>*>(
      settings.CreateQueryList(static_cast<int>(section), all));
  if (queries == nullptr) return;
  for (const BaseQuery* query : *queries) {
    unsigned count = 0;
    while (query->GetValue(count) != nullptr) ++count;
    Require(count <= 65535, "a query has no more values than a field");
  }
  if (!queries->empty() && CommonInterfaces::IsIdentifierQuery(*queries->back())) delete queries->back();
  delete queries;
}

}  // namespace fuzz
