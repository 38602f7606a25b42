// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/queries.h"

#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "utils/text.h"

namespace CommonInterfaces {
namespace {

template <class T>
class QueryOf : public testing::Test {};
using Types = testing::Types<char, unsigned char, short, unsigned short, int, unsigned int, float, double>;
TYPED_TEST_SUITE(QueryOf, Types);

TYPED_TEST(QueryOf, CopiesTheValuesFromAnyAddress) {
  const TypeParam values[] = {TypeParam(1), TypeParam(65), TypeParam(127)};
  for (std::size_t shift = 0; shift < 8; ++shift) {
    std::string bytes(shift, '#');
    bytes.append(reinterpret_cast<const char*>(values), sizeof values);
    const TQuery<TypeParam> query(-5, 0x4000, bytes.data() + shift, 3);
    EXPECT_EQ(query.m_NameId, -5);
    EXPECT_EQ(query.m_Condition, 0x4000U);
    EXPECT_EQ(query.m_Values, std::vector<TypeParam>(values, values + 3));
  }
}

TYPED_TEST(QueryOf, GetValueIsNullFromTheNumberOfValuesOn) {
  const TypeParam values[] = {TypeParam(3), TypeParam(4)};
  const TQuery<TypeParam> query(1, 2, values, 2);
  const BaseQuery& base = query;
  EXPECT_EQ(*static_cast<const TypeParam*>(base.GetValue(0)), TypeParam(3));
  EXPECT_EQ(*static_cast<const TypeParam*>(base.GetValue(1)), TypeParam(4));
  EXPECT_EQ(base.GetValue(2), nullptr);
  EXPECT_EQ(base.GetValue(0xFFFFFFFF), nullptr);
}

TYPED_TEST(QueryOf, NoValues) {
  const TQuery<TypeParam> query(1, 2, nullptr, 0);
  EXPECT_EQ(query.GetValue(0), nullptr);
}

TYPED_TEST(QueryOf, IsDeletedThroughItsBase) {
  const TypeParam value{};
  const std::unique_ptr<BaseQuery> query(new TQuery<TypeParam>(1, 2, &value, 1));
  EXPECT_NE(dynamic_cast<TQuery<TypeParam>*>(query.get()), nullptr);
}

TEST(BaseQuery, LessIsTheSignedOrderOfNameIds) {
  const TQuery<int> negative(-1, 0, nullptr, 0);
  const TQuery<char> zero(0, 0, nullptr, 0);
  const TQuery<double> one(1, 0, nullptr, 0);
  EXPECT_TRUE(negative.Less(zero));
  EXPECT_TRUE(zero.Less(one));
  EXPECT_FALSE(one.Less(zero));
  EXPECT_FALSE(zero.Less(negative));
  EXPECT_FALSE(zero.Less(zero));
}

TEST(BaseList, IsAbstractInUseAndAVectorOfQueries) {
  using List = TBaseList<BaseQuery*>;
  static_assert(std::has_virtual_destructor_v<BaseList>);
  static_assert(std::is_base_of_v<BaseList, List> && std::is_base_of_v<std::vector<BaseQuery*>, List>);
  List list;
  EXPECT_TRUE(list.empty());
}

// Under AddressSanitizer: the queries live on after the list, and are deleted once.
TEST(BaseList, DestructionNeverDeletesTheQueries) {
  const auto owned = std::make_unique<TQuery<int>>(7, 8, nullptr, 0);
  auto* const list = new TBaseList<BaseQuery*>;
  list->push_back(owned.get());
  list->push_back(owned.get());
  BaseList* const base = list;
  delete base;
  EXPECT_EQ(owned->m_NameId, 7);
}

TEST(IsIdentifierQuery, NeedsNameAndCondition) {
  const int id = GetUniqueID("QXid");
  EXPECT_TRUE(IsIdentifierQuery(TQuery<int>(id, 256, nullptr, 0)));
  EXPECT_FALSE(IsIdentifierQuery(TQuery<int>(id, 255, nullptr, 0)));
  EXPECT_FALSE(IsIdentifierQuery(TQuery<int>(id + 1, 256, nullptr, 0)));
}

// What the header tells callers to do; run under AddressSanitizer it neither leaks nor deletes twice.
TEST(IsIdentifierQuery, ReleasingItAsTheHeaderSays) {
  const auto ofField = std::make_unique<TQuery<int>>(7, 8, nullptr, 0);
  const int key = 301;
  auto* const queries = new TBaseList<BaseQuery*>;
  queries->push_back(ofField.get());
  queries->push_back(new TQuery<int>(GetUniqueID(kIdentifierQueryName), kIdentifierCondition, &key, 1));
  if (queries && !queries->empty() && IsIdentifierQuery(*queries->back())) delete queries->back();
  delete queries;
  EXPECT_EQ(ofField->m_Condition, 8U);
}

}  // namespace
}  // namespace CommonInterfaces
