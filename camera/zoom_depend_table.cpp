// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/zoom_rows.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/field_names.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

ZoomDependDesc Row(const char (&cls)[5], int fieldId, int row, float base, float slope, int drawOffset,
                   int reserved) {
  return {static_cast<unsigned>(FourCC(cls)), fieldId, row, base, slope, drawOffset, reserved};
}

}  // namespace

// clang-format off
const ZoomDependDesc Camera::s_ZoomDependDesc[Camera::s_ZoomDependDescSize] = {
    Row("star", FieldIds::StarZoomDependShow,   0, 6, 4,  35, -40),
    Row("star", FieldIds::StarZoomDependLabel,  1, 6, 4,  35, -40),
    Row("clst", FieldIds::SCZoomDependShow,     2, 6, 3,  85, -40),
    Row("clst", FieldIds::SCZoomDependLabel,    3, 6, 3,  85, -40),
    Row("gala", FieldIds::GLZoomDependShow,     4, 0, 2, 155,  20),
    Row("gala", FieldIds::GLZoomDependLabel,    5, 0, 2, 155,  20),
    Row("nebu", FieldIds::NBZoomDependShow,     6, 6, 3,  85, -40),
    Row("nebu", FieldIds::NBZoomDependLabel,    7, 6, 3,  85, -40),
    Row("dsnv", FieldIds::NOZoomDependShow,     8, 0, 2,  75, -40),
    Row("dsnv", FieldIds::NOZoomDependLabel,    9, 0, 2,  75, -40),
    Row("plnt", FieldIds::PlntZoomDependShow,  10, 6, 3,  75, -40),
    Row("plnt", FieldIds::PlntZoomDependLabel, 11, 6, 3,  75, -40),
    Row("moon", FieldIds::MoonZoomDependShow,  12, 6, 3,  75, -40),
    Row("moon", FieldIds::MoonZoomDependLabel, 13, 6, 3,  75, -40),
    Row("astr", FieldIds::AstrZoomDependShow,  14, 6, 3,  75, -40),
    Row("astr", FieldIds::AstrZoomDependLabel, 15, 6, 3,  75, -40),
    Row("comt", FieldIds::ComtZoomDependShow,  16, 6, 3,  75, -40),
    Row("comt", FieldIds::ComtZoomDependLabel, 17, 6, 3,  75, -40),
    Row("scft", FieldIds::USCOZoomDependShow,  18, 9, 3,  75, -40),
    Row("scft", FieldIds::USCOZoomDependLabel, 19, 9, 3,  75, -40),
};
// clang-format on

int FindZoomRow(std::span<const ZoomDependDesc> table, int cls, ZoomRows rows) {
  const int size = static_cast<int>(table.size());
  const int stride = rows == ZoomRows::kAll ? 1 : 2;
  for (int row = rows == ZoomRows::kLabels ? 1 : 0; row < size; row += stride)
    if (table[row].objectClass == static_cast<unsigned>(cls)) return row;
  return kNoZoomRow;
}

}  // namespace CommonInterfaces
