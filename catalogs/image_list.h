// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common_interfaces/sky_images.h"
#include "utils/bytes.h"
#include "utils/file.h"
#include "utils/path.h"

namespace CommonInterfaces {

// An image file's numbers: the count, then one record of 36 bytes for each image, everything but the
// identifier big-endian.
inline constexpr unsigned kImageCountSize = 2;
inline constexpr unsigned kImageRecordSize = 36;

// Fills identifier and corners from a record: signed 1/100000 degree become radians, in single precision up
// to the degrees, as the pictures were measured with.
void DecodeImage(const unsigned char* record, unsigned& id, SkyImageCorner corners[4]);

// The list that all instances of an image catalog share, of CSTLImageDesc or MWayImageDesc.
template <class Desc>
class ImageList {
 public:
  // One more instance; the first one reads the file.
  void Enter(const char* logicalPath) {
    if (m_Instances == 0) {
      const std::string path = ZentharPath::GetPath(logicalPath);
      if (!path.empty()) Load(path);
    }
    ++m_Instances;  // an instance that could not be made for lack of memory never leaves
  }

  // One instance less; the last one frees the images.
  void Leave() {
    if (--m_Instances > 0) return;
    m_Pointers.clear();
    m_Images.clear();
  }

  typename std::vector<Desc*>::const_iterator GetBegin() const { return m_Pointers.begin(); }
  typename std::vector<Desc*>::const_iterator GetEnd() const { return m_Pointers.end(); }

 private:
  // Record by record, so that a count which promises more than the file holds costs nothing.
  void Load(const std::string& path) {
    m_Pointers.clear();  // of a reading that ended for lack of memory
    m_Images.clear();
    MFile file;
    unsigned char bytes[kImageRecordSize];
    if (!file.Open(path.c_str(), MFile::kRead) || file.Read(bytes, kImageCountSize) != kImageCountSize)
      return;
    for (int left = bytes[0] << 8 | bytes[1]; left > 0; --left) {
      if (file.Read(bytes, kImageRecordSize) != kImageRecordSize) return;
      m_Images.push_back(std::make_unique<Desc>());
      DecodeImage(bytes, m_Images.back()->id, m_Images.back()->corners);
      m_Pointers.push_back(m_Images.back().get());
    }
  }

  std::vector<std::unique_ptr<Desc>> m_Images;
  std::vector<Desc*> m_Pointers;  // to the same, as callers see them
  int m_Instances = 0;
};

}  // namespace CommonInterfaces
