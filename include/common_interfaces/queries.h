// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Queries: the filter form of settings fields. The library makes them and the list of a section; the
// application matches its objects against them by name id, condition and values.
#pragma once

#include <vector>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// Who owns a query:
//   made by SettingField::CreateQuery     the field; it dies with the field, with an assignment to the field,
//                                         and with the first CreateQuery after a change
//   the aim query in a query list         the settings container; it dies with the container and with the
//                                         next aim query that the container makes
//   made by SettingField::CreateAimQuery  the caller
//   the identifier query in a query list  nobody: the library makes it and never deletes it (see TBaseList)
// Queries are used from the thread that uses their container.
class COMMON_INTERFACES_API BaseQuery {
 public:
  BaseQuery(int nameId, unsigned condition) : m_NameId(nameId), m_Condition(condition) {}
  BaseQuery(const BaseQuery&) = default;
  BaseQuery& operator=(const BaseQuery&) = default;
  virtual ~BaseQuery();

  // The address of the value at `index`, valid while the query lives and its values stay; null when `index`
  // is not below the number of values.
  virtual const void* GetValue(unsigned index) const = 0;

  // The order by name id (signed).
  virtual bool Less(const BaseQuery& other) const;

  int m_NameId;          // name id of the field, or GetUniqueID("QXid") for the identifier query
  unsigned m_Condition;  // condition of the field, or kIdentifierCondition
};
static_assert(sizeof(void*) != 4 || sizeof(BaseQuery) == 12);

// Name and condition of the identifier query. No field may bear this name.
constexpr char kIdentifierQueryName[] = "QXid";
constexpr unsigned kIdentifierCondition = 256;

// A query over values of type T, one of char, unsigned char, short, unsigned short, int, unsigned, float,
// double (type codes 0 to 7 of settings fields, in this order).
template <class T>
class COMMON_INTERFACES_API TQuery : public BaseQuery {
 public:
  // Copies `count` values, one by one, from `values`, which may stand at any address (the values of a packed
  // record do). Null only with a count of 0.
  TQuery(int nameId, unsigned condition, const void* values, unsigned count);

  const void* GetValue(unsigned index) const override;

  std::vector<T> m_Values;
};

// The only queries there are.
extern template class TQuery<char>;
extern template class TQuery<unsigned char>;
extern template class TQuery<short>;
extern template class TQuery<unsigned short>;
extern template class TQuery<int>;
extern template class TQuery<unsigned int>;
extern template class TQuery<float>;
extern template class TQuery<double>;

// What a request for a list returns. The caller deletes it.
class COMMON_INTERFACES_API BaseList {
 public:
  BaseList() = default;
  BaseList(const BaseList&) = default;
  BaseList& operator=(const BaseList&) = default;
  virtual ~BaseList();
};

// A list of pointers that it does not own: the destructor releases the list's own storage only, because the
// queries belong to their fields and to the container (see BaseQuery).
//
// The identifier query belongs to nobody. A caller that wants its memory back deletes that one query, once,
// before the list, and no other:
//
//   auto* queries = static_cast<TBaseList<BaseQuery*>*>(container.CreateQueryList(section, all));
//   ...
//   if (queries && !queries->empty() && IsIdentifierQuery(*queries->back())) delete queries->back();
//   delete queries;
//
// It is always the last of its list, every call of CreateQueryList makes a new one, and no other object keeps
// a pointer to it, so a second list never holds the same one. A copy of the list does: then only one of the
// two is treated so. Deleting any other query of the list would delete it twice.
template <class T>
class COMMON_INTERFACES_API TBaseList : public std::vector<T>, public BaseList {
 public:
  using std::vector<T>::vector;
};

// The only list there is.
extern template class TBaseList<BaseQuery*>;

// Whether a query of a list is the identifier query, by its name and condition.
COMMON_INTERFACES_API bool IsIdentifierQuery(const BaseQuery& query);

}  // namespace CommonInterfaces
