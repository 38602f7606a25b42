// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/settings_field.h"
#include "settings/field_bytes.h"
#include "support/debug_capture.h"

namespace CommonInterfaces::field_test {

using Access = SettingFieldTestAccess;
using test_support::ByteParts;
using test_support::Bytes;
using test_support::DataOf;
using test_support::FieldOf;
using test_support::Int32s;
using test_support::IntParts;
using test_support::LittleEndian;
using test_support::RecordParts;
using Lines = std::vector<std::string>;

inline SettingField FailedField() { return {nullptr, nullptr, 0}; }

class Field : public testing::Test {
 protected:
  test_support::DebugCapture debug;
};

}  // namespace CommonInterfaces::field_test
