// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The query list of a section.
#include <algorithm>
#include <memory>

#include "common_interfaces/queries.h"
#include "common_interfaces/settings_data.h"
#include "settings/field_index.h"
#include "settings/field_values.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

using QueryList = TBaseList<BaseQuery*>;
using IdentifierQuery = TQuery<int>;

// Gathers the keys of favourites; whoever gets the query keeps it.
class IdentifierCollection {
 public:
  explicit IdentifierCollection(int section) : m_Section(static_cast<unsigned>(section)) {}

  // True for every field of favourites, whether it contributes or not: none makes a query of its own. The
  // query section counts as it stands: a field that leaves it to its own section does not contribute,
  // deliberately.
  bool Takes(const SettingField& field) {
    if (!IsFavourite(field)) return false;
    Favourite favourite;
    if (field.GetQuerySection() == m_Section && field.GetCompareStatus() != 0 &&
        LoadFavourite(field, favourite))
      Add(favourite.key);
    return true;
  }

  void AppendTo(QueryList& list) {
    if (!m_Query) return;
    list.push_back(m_Query.get());
    static_cast<void>(m_Query.release());
  }

 private:
  void Add(int key) {
    if (m_Query) {
      m_Query->m_Values.push_back(key);
    } else {
      m_Query = std::make_unique<IdentifierQuery>(::GetUniqueID(kIdentifierQueryName), kIdentifierCondition,
                                                  &key, 1);
    }
  }

  unsigned m_Section;
  std::unique_ptr<IdentifierQuery> m_Query;
};

// A query that is about to be deleted must not stay in a list.
void Forget(QueryList& list, const BaseQuery* query) {
  list.erase(std::remove(list.begin(), list.end(), query), list.end());
}

}  // namespace

BaseList* SettingsData::CreateQueryList(int section, bool all) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const int index = FindSection(static_cast<unsigned>(section), true);
  if (index < 0) return nullptr;
  const bool on = m_Sections[static_cast<std::size_t>(index)].status != 0;
  if (!on && section != m_AimObject.kind) return nullptr;

  auto list = std::make_unique<QueryList>();
  IdentifierCollection identifiers(section);
  const FieldRun run = GetRunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    SettingField& field = *GetFieldAt(i);
    if (BaseQuery* const aim = field.CreateAimQuery(static_cast<unsigned>(section), m_AimObject)) {
      // Two fields may describe the aim: the second one's query takes the place of the first one's.
      Forget(*list, m_pAimQuery);
      delete m_pAimQuery;
      m_pAimQuery = aim;
      list->push_back(aim);
    } else if (on && !identifiers.Takes(field)) {
      if (BaseQuery* const query = field.CreateQuery(static_cast<unsigned>(section), all))
        list->push_back(query);
    }
  }
  identifiers.AppendTo(*list);
  return list.release();
}

}  // namespace CommonInterfaces
