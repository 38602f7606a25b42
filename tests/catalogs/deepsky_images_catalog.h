// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/sky_images.h"
#include "tests/support/temp_dir.h"
#include "utils/text.h"

namespace test_support {

inline constexpr char kFile[] = "data/media/skyobjects/dso_images/dsoimagestrue.txt";
inline constexpr int kGalaxy = FourCC("gala");

// A data root with this file of deep-sky images, and an instance that has read it.
struct Catalog {
  explicit Catalog(const std::string& text) { roots.dir.Write(kFile, text); }

  std::vector<unsigned> Numbers() {
    std::vector<unsigned> numbers;
    for (auto image = images().GetFirst(); image; image = images().GetNext())
      numbers.push_back(image->number);
    return numbers;
  }
  CommonInterfaces::DSOImages& images() {
    if (!m_Images) m_Images = std::make_unique<CommonInterfaces::DSOImages>();
    return *m_Images;
  }

  TempRoots roots;

 private:
  std::unique_ptr<CommonInterfaces::DSOImages> m_Images;
};

inline const CommonInterfaces::DSOImageDesc& Only(Catalog& catalog) {
  const CommonInterfaces::DSOImageDesc* const image = catalog.images().GetFirst();
  static const CommonInterfaces::DSOImageDesc kNone;
  EXPECT_NE(image, nullptr);
  EXPECT_EQ(catalog.images().GetNext(), nullptr);
  return image ? *image : kNone;
}

}  // namespace test_support
