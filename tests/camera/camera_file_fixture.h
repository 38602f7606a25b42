// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_field.h"
#include "support/camera_settings.h"
#include "utils/text.h"

namespace test_support {

inline constexpr unsigned kOwner = 1;

// The bytes of a field of the camera record (first, second) in a file; "" when it is not there.
inline std::string FieldBytes(const std::string& path, unsigned first, unsigned second, const char* key) {
  CommonInterfaces::SettingsData settings(second, first, "filters.data");
  if (!settings.Read(path.c_str())) return "";
  settings.SetCurSection(kCameraSection);
  if (settings.GetCurSection() != kCameraSection) return "";
  const CommonInterfaces::SettingField* field = settings.GetAtField(kCameraSection, GetUniqueID(key), false);
  if (field == nullptr) return "";
  std::string bytes(field->GetSize() * CommonInterfaces::FieldElementWidth(field->GetType()), '\0');
  field->GetData(bytes.data());
  return bytes;
}

template <class T>
T FieldValue(const std::string& path, unsigned second, const char* key) {
  T value = {};
  const std::string bytes = FieldBytes(path, kCAMR, second, key);
  EXPECT_EQ(bytes.size(), sizeof value) << key;
  if (bytes.size() == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

// A camera looks for the file of its defaults once, when it is made: the file has to be there before it.
struct RootsWithDefaults : TempRoots {
  RootsWithDefaults() { WriteCameraDefaults(*this); }
};

class CameraFileTest : public testing::Test {
 protected:
  std::string Path(const char* name) const { return roots.dir.Path(name); }

  RootsWithDefaults roots;
  CommonInterfaces::Camera camera{kOwner};
};

}  // namespace test_support
