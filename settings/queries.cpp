// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/queries.h"

#include "utils/text.h"

namespace CommonInterfaces {

BaseQuery::~BaseQuery() = default;

bool BaseQuery::Less(const BaseQuery& other) const { return m_NameId < other.m_NameId; }

template class TQuery<char>;
template class TQuery<unsigned char>;
template class TQuery<short>;
template class TQuery<unsigned short>;
template class TQuery<int>;
template class TQuery<unsigned int>;
template class TQuery<float>;
template class TQuery<double>;

BaseList::~BaseList() = default;

template class TBaseList<BaseQuery*>;

bool IsIdentifierQuery(const BaseQuery& query) {
  return query.m_Condition == kIdentifierCondition && query.m_NameId == ::GetUniqueID(kIdentifierQueryName);
}

}  // namespace CommonInterfaces
