// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The name ids of the columns that skyview reads from the catalog tables.
#pragma once

#include "utils/text.h"

namespace scene::fields {

inline const int kRA = GetUniqueID("RA");
inline const int kDec = GetUniqueID("Dec");
inline const int kType = GetUniqueID("Type");
inline const int kNumber = GetUniqueID("Number");
inline const int kLabel = GetUniqueID("Label");
inline const int kProperName = GetUniqueID("ProperName");
inline const int kEnglishName = GetUniqueID("EnglishName");
inline const int kBayer = GetUniqueID("Bayer");
inline const int kFlamsteed = GetUniqueID("Flamsteed");
inline const int kVisMagnitude = GetUniqueID("VisMagnitude");
inline const int kSpectrType = GetUniqueID("SpectrType");
inline const int kPropMotionRA = GetUniqueID("PropMotionRA");
inline const int kPropMotionDec = GetUniqueID("PropMotionDec");
inline const int kLargestDimension = GetUniqueID("LargestDimension");
inline const int kSmallestDimension = GetUniqueID("SmallestDimension");
inline const int kMessierNumber = GetUniqueID("MessierNumber");
inline const int kNGC_ICnumber = GetUniqueID("NGC_ICnumber");
inline const int kColorIndexBV = GetUniqueID("ColorIndexBV");
inline const int kParallax = GetUniqueID("Parallax");
inline const int kHipparcosID = GetUniqueID("HipparcosID");

}  // namespace scene::fields
