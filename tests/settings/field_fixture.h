// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "common_interfaces/settings_field.h"
#include "support/debug_capture.h"

namespace test_support {

inline CommonInterfaces::SettingField FailedField() { return {nullptr, nullptr, 0}; }

class FieldTest : public testing::Test {
 protected:
  DebugCapture debug;
};

}  // namespace test_support
