// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/sky_images.h"
#include "tests/support/temp_dir.h"

namespace deepsky_images_test {

using CommonInterfaces::DSOImageDesc;
using CommonInterfaces::DSOImages;
using test_support::TempRoots;

inline constexpr char kFile[] = "data/media/skyobjects/dso_images/dsoimagestrue.txt";

// A data root with this file of deep-sky images, and an instance that has read it.
struct Catalog {
  explicit Catalog(const std::string& text) { roots.dir.Write(kFile, text); }

  std::vector<unsigned> Numbers() {
    std::vector<unsigned> numbers;
    for (auto image = images().GetFirst(); image; image = images().GetNext())
      numbers.push_back(image->number);
    return numbers;
  }
  DSOImages& images() {
    if (!m_Images) m_Images = std::make_unique<DSOImages>();
    return *m_Images;
  }

  TempRoots roots;

 private:
  std::unique_ptr<DSOImages> m_Images;
};

inline const DSOImageDesc& Only(Catalog& catalog) {
  const DSOImageDesc* const image = catalog.images().GetFirst();
  static const DSOImageDesc kNone;
  EXPECT_NE(image, nullptr);
  EXPECT_EQ(catalog.images().GetNext(), nullptr);
  return image ? *image : kNone;
}

}  // namespace deepsky_images_test
