// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/sky_images.h"

#include <cstring>

#include "astro/constants.h"
#include "catalogs/image_list.h"

namespace CommonInterfaces {
namespace {

constexpr char kConstellationFile[] = "media:skyobjects:constell_images:constell.dat";
constexpr char kMilkyWayFile[] = "media:skyobjects:mway_images:mway.dat";

// Process-wide; the one thread that has instances.
ImageList<CSTLImageDesc> s_Constellations;
ImageList<MWayImageDesc> s_MilkyWay;

float ToRadians(const unsigned char* coordinate) {
  const float degrees = static_cast<float>(static_cast<int>(LoadBE32(coordinate))) / 100000.0f;
  return static_cast<float>(degrees * astro::kRadiansPerDegree);
}

}  // namespace

void DecodeImage(const unsigned char* record, unsigned& id, SkyImageCorner corners[4]) {
  std::memcpy(&id, record, sizeof id);  // deliberately not swapped: it is a name, not a number
  for (int k = 0; k < 4; ++k) {
    corners[k] = {ToRadians(record + 4 + 8 * k), ToRadians(record + 8 + 8 * k)};
  }
}

CSTLImages::CSTLImages() { s_Constellations.Enter(kConstellationFile); }
CSTLImages::CSTLImages(const CSTLImages&) : CSTLImages() {}
CSTLImages::~CSTLImages() { s_Constellations.Leave(); }
CSTLImages::Iterator CSTLImages::GetBegin() const { return s_Constellations.GetBegin(); }
CSTLImages::Iterator CSTLImages::GetEnd() const { return s_Constellations.GetEnd(); }

MWayImages::MWayImages() { s_MilkyWay.Enter(kMilkyWayFile); }
MWayImages::MWayImages(const MWayImages&) : MWayImages() {}
MWayImages::~MWayImages() { s_MilkyWay.Leave(); }
MWayImages::Iterator MWayImages::GetBegin() const { return s_MilkyWay.GetBegin(); }
MWayImages::Iterator MWayImages::GetEnd() const { return s_MilkyWay.GetEnd(); }

}  // namespace CommonInterfaces
