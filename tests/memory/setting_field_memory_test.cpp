// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A single settings field while memory runs out.
#include <memory>

#include "common_interfaces/queries.h"
#include "memory/every_allocation.h"
#include "memory/settings_state.h"

namespace test_support {
namespace {

using namespace memory_tests;

constexpr int kOther[] = {7, 8, 9};

std::unique_ptr<SettingField> Make() { return std::make_unique<SettingField>(FieldOf(IntParts({1, 2, 3}))); }

// What is not restored would stay when the field goes.
struct RestoresValues {
  void operator()(SettingField* field) const {
    field->RestoreData();
    delete field;
  }
};

template <class Prepare, class Call>
void FailEach(Prepare prepare, Call call) {
  FailEveryAllocation(prepare, call, [](const SettingField& field) { return StateOf(field); });
}

TEST(SettingFieldMemory, IsAssignedALongerOne) {
  const SettingField other = FieldOf(IntParts({4, 5, 6, 7}));
  FailEach(Make, [&](SettingField& field) { field = other; });
}

TEST(SettingFieldMemory, IsAssignedAnotherWhileItHasAQuery) {
  const SettingField other = FieldOf(IntParts({4, 5, 6}));
  const auto prepare = [] {
    auto field = Make();
    field->CreateQuery(field->GetSection(), false);
    return field;
  };
  FailEach(prepare, [&](SettingField& field) { static_cast<void>(SettingField(field = other)); });
}

TEST(SettingFieldMemory, ValuesAreSaved) {
  const auto prepare = [] { return std::unique_ptr<SettingField, RestoresValues>(Make().release()); };
  FailEach(prepare, [](SettingField& field) { field.SetDataAndStore(kOther); });
}

TEST(SettingFieldMemory, IsResized) {
  FailEach(Make, [](SettingField& field) { field.SetData(kOther, 2); });
}

std::unique_ptr<SettingField, RestoresValues> MakeWithSavedValues() {
  std::unique_ptr<SettingField, RestoresValues> field(Make().release());
  EXPECT_TRUE(field->SetDataAndStore(kOther));
  return field;
}

TEST(SettingFieldMemory, ValuesAreSavedOnceMore) {
  constexpr int kThird[] = {10, 11, 12};
  FailEach(MakeWithSavedValues, [&](SettingField& field) { field.SetDataAndStore(kThird); });
}

TEST(SettingFieldMemory, SavedValuesAreRestored) {
  FailEach(MakeWithSavedValues, [](SettingField& field) { field.RestoreData(); });
}

TEST(SettingFieldMemory, QueryOfAChangedFieldIsMade) {
  const auto prepare = [] {
    auto field = Make();
    field->SetElement(kOther, 0);
    return field;
  };
  FailEach(prepare, [](SettingField& field) { field.CreateQuery(field.GetSection(), false); });
}

}  // namespace
}  // namespace test_support
