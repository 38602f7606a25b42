// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings containers belong to one thread at a time, all of them together.
#include <gtest/gtest.h>

#include <map>

#include "common_interfaces/field_data.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/settings_data.h"
#include "one_thread/overlap.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::SettingsData;
using one_thread_tests::Operation;
using one_thread_tests::Overlap;

constexpr unsigned kSection = 0x706C6E74;  // "plnt"
constexpr int kMissing = 12345;

class ContainersByTwoThreads : public testing::Test {
 protected:
  // An operation that prints a line in its middle: there is no such field.
  void Ask() { static_cast<void>(settings.GetField(kMissing, &value)); }
  std::vector<Operation> Operations(SettingsData& used) {
    return {{"GetField", [&] { used.GetField(kMissing, &value); }},
            {"SetField", [&] { used.SetField(kMissing, &value); }},
            {"GetAtField", [&] { used.GetAtField(kSection, kMissing, false); }},
            {"SetFieldElement", [&] { used.SetFieldElement(kSection, kMissing, &value, 0); }},
            {"GetFieldElement", [&] { used.GetFieldElement(kMissing, &value, 0); }},
            {"SetFieldStatus", [&] { used.SetFieldStatus(kSection, kMissing, 1); }},
            {"GetFieldStatus", [&] { used.GetFieldStatus(kMissing); }},
            {"SetSectionStatus", [&] { used.SetSectionStatus(kSection, 1); }},
            {"GetSectionStatus", [&] { used.GetSectionStatus(kSection, true); }},
            {"SetSectionAlias", [&] { used.SetSectionAlias(kSection, 1); }},
            {"SetCurSection", [&] { used.SetCurSection(kSection); }},
            {"SetSectionChanged", [&] { used.SetSectionChanged(kSection, true); }},
            {"SetAimObject", [&] { used.SetAimObject({}); }},
            {"GetFavoInfo", [&] { used.GetFavoInfo(&favourites, kSection); }},
            {"GetObjectInfo", [&] { used.GetObjectInfo(numbers, kSection, -1); }},
            {"ClearIntegrFlag", [&] { used.ClearIntegrFlag(); }},
            {"CreateQueryList", [&] { used.CreateQueryList(kSection, true); }},
            {"CreateField",
             [&] {
               used.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record), sizeof record,
                                true);
             }},
            {"DeleteField", [&] { used.DeleteField("missing", kSection); }},
            {"GetFieldAt", [&] { used.GetFieldAt(0); }},
            {"Read", [&] { used.Read("missing.data"); }},
            {"Restore", [&] { used.Restore("missing.data"); }},
            {"Write", [&] { used.Write("written.data"); }},
            {"Save", [&] { used.Save("saved.data"); }},
            {"operator=", [&] { used = third; }}};
  }

  test_support::TempRoots roots;
  SettingsData settings{1, 2, "filters.data"}, another{1, 3, "filters.data"}, third{1, 4, "filters.data"};
  int value = 0;
  std::map<int, unsigned char> favourites;
  std::vector<int> numbers;
  alignas(CommonInterfaces::FieldData) unsigned char record[CommonInterfaces::kFieldHeaderSize] = {};
};

TEST_F(ContainersByTwoThreads, EveryOperationOfTheSameContainerIsNoticed) {
  for (const Operation& operation : Operations(settings)) {
    const Overlap overlap([this] { Ask(); }, operation.call);
    EXPECT_EQ(overlap.GetOperations(), std::string("SettingsData: GetField, ") + operation.name);
  }
}

TEST_F(ContainersByTwoThreads, EveryOperationOfAnotherContainerIsNoticed) {
  for (const Operation& operation : Operations(another)) {
    const Overlap overlap([this] { Ask(); }, operation.call);
    EXPECT_EQ(overlap.GetOperations(), std::string("SettingsData: GetField, ") + operation.name);
  }
}

TEST_F(ContainersByTwoThreads, MakingAndDestroyingOneIsNoticed) {
  {
    const Overlap overlap([this] { Ask(); }, [] { const SettingsData made(1, 5, "filters.data"); });
    ASSERT_GE(overlap.GetBreaches().size(), 2u);
    EXPECT_NE(overlap.GetBreaches()[0].find("calls SettingsData\n"), std::string::npos);
    EXPECT_NE(overlap.GetBreaches()[1].find("calls DeleteFields\n"), std::string::npos);
  }
}

TEST_F(ContainersByTwoThreads, HandingOverIsNone) {
  const test_support::BreachCapture breaches;
  for (const Operation& operation : Operations(settings)) {
    operation.call();
    std::thread(operation.call).join();
  }
  EXPECT_EQ(breaches.GetCount(), 0);
}

TEST_F(ContainersByTwoThreads, WhatTouchesNoContainerIsNone) {
  const Overlap overlap([this] { Ask(); }, [] { SettingsData::HoldsBlock("filters.data", 1, 2); });
  EXPECT_TRUE(overlap.HasHappened());
  EXPECT_TRUE(overlap.GetBreaches().empty());
}

}  // namespace
