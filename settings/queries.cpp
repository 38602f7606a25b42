// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/queries.h"

#include <cstring>

#include "utils/text.h"

namespace CommonInterfaces {

BaseQuery::~BaseQuery() = default;

bool BaseQuery::Less(const BaseQuery& other) const { return m_NameId < other.m_NameId; }

template <class T>
TQuery<T>::TQuery(int nameId, unsigned condition, const void* values, unsigned count)
    : BaseQuery(nameId, condition) {
  const auto* from = static_cast<const unsigned char*>(values);
  m_Values.reserve(count);
  for (unsigned i = 0; i < count; ++i, from += sizeof(T)) {
    T value;
    std::memcpy(&value, from, sizeof value);
    m_Values.push_back(value);
  }
}

template <class T>
const void* TQuery<T>::GetValue(unsigned index) const {
  return index < m_Values.size() ? m_Values.data() + index : nullptr;
}

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
