// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Values of every element type.
#include "common_interfaces/settings_field.h"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "settings/field_fixture.h"
#include "settings/field_record.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using namespace field_test;

struct TypeCase {
  unsigned char type;
  unsigned width;
};

class FieldOfType : public testing::TestWithParam<TypeCase> {
 protected:
  // Three elements, of the bytes 1, 2, 3, ...
  RecordParts Parts() const {
    RecordParts parts;
    parts.type = GetParam().type;
    parts.size = 3;
    for (unsigned i = 1; i <= 3 * GetParam().width; ++i) parts.values += static_cast<char>(i);
    return parts;
  }
};

TEST_P(FieldOfType, WidthAndOffsets) {
  const unsigned width = GetParam().width;
  const SettingField field = FieldOf(Parts());
  test_support::DebugCapture debug;
  EXPECT_EQ(Access::TypeSize(field), width);
  EXPECT_EQ(Access::Offset(field, 0), 0U);
  EXPECT_EQ(Access::Offset(field, 2), width * 2);
  EXPECT_EQ(debug.lines, Lines{});
  EXPECT_EQ(Access::Offset(field, 3), 0xFFFFFFFFU);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'inIndex = 3' in function SettingField::GetOffset\n"});
}

TEST_P(FieldOfType, GetDataCopiesAllValues) { EXPECT_EQ(DataOf(FieldOf(Parts())), Parts().values); }

TEST_P(FieldOfType, GetElementCopiesOneElement) {
  const unsigned width = GetParam().width;
  const SettingField field = FieldOf(Parts());
  std::string element(width + 1, '#');
  EXPECT_TRUE(field.GetElement(element.data(), 1));
  EXPECT_EQ(element, Parts().values.substr(width, width) + '#');
}

TEST_P(FieldOfType, SetElementReplacesOneElement) {
  const unsigned width = GetParam().width;
  SettingField field = FieldOf(Parts());
  const std::string element(width, 'e');
  EXPECT_TRUE(field.SetElement(element.data(), 2));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(DataOf(field), Parts().values.substr(0, 2 * width) + element);
}

TEST_P(FieldOfType, SetElementOfEqualBytesChangesNothing) {
  SettingField field = FieldOf(Parts());
  EXPECT_FALSE(field.SetElement(Parts().values.data() + GetParam().width, 1));
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_P(FieldOfType, ResizeCountsInElements) {
  const unsigned width = GetParam().width;
  SettingField field = FieldOf(Parts());
  const std::string values(5 * width, 'n');
  EXPECT_FALSE(field.SetData(values.data(), 5));
  EXPECT_EQ(Access::RecordSize(field), static_cast<int>(20 + 5 * width));
  EXPECT_EQ(field.GetSize(), 5U);
  EXPECT_EQ(DataOf(field), values);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, FieldOfType,
                         testing::Values(TypeCase{0, 1}, TypeCase{1, 1}, TypeCase{2, 2}, TypeCase{3, 2},
                                         TypeCase{4, 4}, TypeCase{5, 4}, TypeCase{6, 4}, TypeCase{7, 8},
                                         TypeCase{8, 1}),
                         [](const auto& test) { return "Type" + std::to_string(test.param.type); });

}  // namespace
}  // namespace CommonInterfaces
