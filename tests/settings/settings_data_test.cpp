// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstring>

#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsLife : public SettingsTest {};

TEST_F(SettingsLife, NewContainerIsEmpty) {
  SettingsData settings(7, kOwner, "filters.data");
  EXPECT_EQ(settings.GetID(), 7u);
  EXPECT_EQ(settings.GetOwner(), kOwner);
  EXPECT_EQ(settings.GetVersion(), 0u);
  EXPECT_EQ(settings.GetCurSection(), 0u);
  EXPECT_EQ(settings.GetFieldCount(), 0);
  EXPECT_TRUE(settings.GetAimObject().IsEmpty());
  EXPECT_TRUE(settings.IsSectionChanged(kPlnt));
  EXPECT_EQ(settings.GetFieldAt(0), nullptr);
  EXPECT_EQ(settings.GetFieldAt(-1), nullptr);
  EXPECT_EQ(settings.GetSectionAt(0), nullptr);
  EXPECT_EQ(settings.GetSectionAt(-1), nullptr);
  settings.SetID(8);
  EXPECT_EQ(settings.GetID(), 8u);
}

TEST_F(SettingsLife, NullFileNameIsNoFile) {
  SettingsData settings(kId, kOwner, nullptr);
  EXPECT_FALSE(settings.Read(nullptr));
}

TEST_F(SettingsLife, AssignmentCopiesSectionsAndFieldsDeeply) {
  WriteDefaults(Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 0, 3, kComt), Section(kStar, 1, 1)},
                                  {Int(kPlnt, 1, 10), Int(kStar, 2, 20)}));
  SettingsData source(kId, kOwner, "filters.data");
  ASSERT_TRUE(source.Read("filters.data"));
  source.SetCurSection(kStar);
  source.SetAimObject(SSO_ID(static_cast<int>(kPlnt), 3));
  source.SetSectionChanged(kPlnt, false);

  SettingsData target(9, 99, "nothing.data");
  Create(target, Int(kMoon, 1, 1));
  target.SetSectionChanged(kStar, false);
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(RecordsOf(target), RecordsOf(source));
  EXPECT_EQ(SectionsOf(target), SectionsOf(source));
  EXPECT_NE(target.GetFieldAt(0), source.GetFieldAt(0));
  EXPECT_EQ(target.GetOwner(), kOwner);
  EXPECT_EQ(target.GetID(), kId);
  EXPECT_EQ(target.GetCurSection(), kStar);
  // Not copied: version, changed flags, aim object.
  EXPECT_EQ(target.GetVersion(), 0u);
  EXPECT_TRUE(target.IsSectionChanged(kPlnt));
  EXPECT_FALSE(target.IsSectionChanged(kStar));
  EXPECT_TRUE(target.GetAimObject().IsEmpty());
  // The file name is copied: the target now reads the defaults of the source.
  EXPECT_TRUE(target.Read(nullptr));
  const int value = 77;
  source.GetFieldAt(0)->SetElement(&value, 0);
  EXPECT_EQ(FirstInt(*target.GetFieldAt(0)), 10);
}

TEST_F(SettingsLife, CorrectionFieldsAreNotCopied) {
  const SettingsData source(kId, kOwner, "filters.data");
  roots.dir.Write("data/FilterCorrection.data", Block(kOwner, kDefaults, {}, {Int(kPlnt, 1, 5)}));
  SettingsData target(kId, kOwner, "filters.data");
  target = source;
  EXPECT_EQ(target.GetCorrectionCount(), 1);
}

TEST_F(SettingsLife, SelfAssignmentChangesNothing) {
  SettingsData settings(kId, kOwner, "filters.data");
  Create(settings, Int(kPlnt, 1, 10));
  const SettingsData& same = settings;
  settings = same;
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kPlnt, 1, 10)});
}

TEST_F(SettingsLife, ChangedFlagsAreKeptBySection) {
  SettingsData settings(kId, kOwner, "filters.data");
  settings.SetSectionChanged(kNone, false);  // no flag exists yet
  EXPECT_TRUE(settings.IsSectionChanged(kPlnt));
  settings.SetSectionChanged(kPlnt, false);
  settings.SetSectionChanged(kStar, true);
  EXPECT_FALSE(settings.IsSectionChanged(kPlnt));
  settings.SetSectionChanged(kNone, true);
  EXPECT_TRUE(settings.IsSectionChanged(kPlnt));
}

TEST_F(SettingsLife, ModifyFlagIsSharedByAllContainers) {
  SettingsData::SetModifyFlag(false);
  SettingsData one(kId, kOwner, "filters.data"), other(2, kOwner, "filters.data");
  Create(one, Int(kPlnt, 1, 10));
  Create(other, Int(kPlnt, 1, 10));
  one.SetFieldStatus(kPlnt, 1, 7);
  EXPECT_TRUE(other.GetModifyFlag());
  other.SetFieldStatus(kPlnt, 1, 1);
  EXPECT_FALSE(one.GetModifyFlag());
}

#if defined(__GNUC__)
// Which slot a call goes through is part of the binary interface. The destructor, third in order, takes two
// slots here, so that the numbers of those behind it are their place in the order, counted from 1.
TEST_F(SettingsLife, VirtualOperationsKeepTheirSlots) {
  // In this binary interface a pointer to a virtual member function holds 1 + the offset of its slot.
  const auto slotOf = [](auto member) {
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] & ~std::ptrdiff_t{1}) / static_cast<std::ptrdiff_t>(sizeof(void*));
  };
  using D = SettingsData;
  EXPECT_EQ(slotOf(static_cast<SettingField* (D::*)(const SSO_ID&, bool)>(&D::GetAtField)), 0);
  EXPECT_EQ(slotOf(static_cast<SettingField* (D::*)(unsigned, int, bool)>(&D::GetAtField)), 1);
  EXPECT_EQ(slotOf(&D::GetFavoInfo), 4);
  EXPECT_EQ(slotOf(&D::GetObjectInfo), 5);
  EXPECT_EQ(slotOf(&D::GetIntegrPlnt), 6);
  EXPECT_EQ(slotOf(&D::ClearIntegrFlag), 7);
  EXPECT_EQ(slotOf(static_cast<bool (D::*)(int, void*)>(&D::GetField)), 8);
  EXPECT_EQ(slotOf(static_cast<bool (D::*)(const char*, void*)>(&D::GetField)), 9);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(int, const void*)>(&D::SetField)), 10);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(const char*, const void*)>(&D::SetField)), 11);
  EXPECT_EQ(slotOf(&D::Reserve), 12);
  EXPECT_EQ(slotOf(&D::CreateField), 13);
  EXPECT_EQ(slotOf(&D::DeleteField), 14);
  EXPECT_EQ(slotOf(&D::GetFieldType), 15);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(unsigned, int, const void*, int)>(&D::SetFieldElement)), 16);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(int, const void*, int)>(&D::SetFieldElement)), 17);
  EXPECT_EQ(slotOf(&D::GetFieldElement), 18);
  EXPECT_EQ(slotOf(&D::SetSectionStatus), 19);
  EXPECT_EQ(slotOf(&D::GetSectionStatus), 20);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(unsigned, int, unsigned char)>(&D::SetFieldStatus)), 21);
  EXPECT_EQ(slotOf(static_cast<void (D::*)(int, unsigned char)>(&D::SetFieldStatus)), 22);
  EXPECT_EQ(slotOf(&D::GetFieldStatus), 23);
  EXPECT_EQ(slotOf(&D::CreateQueryList), 24);
  EXPECT_EQ(slotOf(&D::SetID), 25);
  EXPECT_EQ(slotOf(&D::GetID), 26);
  EXPECT_EQ(slotOf(&D::Read), 27);
  EXPECT_EQ(slotOf(&D::Restore), 28);
  EXPECT_EQ(slotOf(&D::Write), 29);
  EXPECT_EQ(slotOf(&D::Read2), 30);
  EXPECT_EQ(slotOf(&D::Write2), 31);
}
#endif

}  // namespace
}  // namespace test_support
