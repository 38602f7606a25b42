// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "camera/camera_fields.h"
#include "camera/saturate.h"
#include "camera/zoom_rows.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/object_kinds.h"
#include "common_interfaces/settings_data.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

constexpr int kNoClassCode = 0;

// Not a number counts as 0: a camera without a zoom shows as little as it can.
double ClampToCodes(double code) { return code > 0.0 ? std::min<double>(code, kMaxMagCode) : 0.0; }

}  // namespace

void Camera::RefreshLimitingMagnitudes() {
  const ChangesObject use(this, "Camera");
  const double logZoom = std::log10(m_Zoom);
  for (int row = 0; row < s_ZoomDependDescSize; ++row) {
    const ZoomDependDesc& desc = s_ZoomDependDesc[row];
    const double limit = (logZoom * desc.slope + desc.base) * kMagCodesPerMag + m_MagCorrections[row];
    m_LimitingMagnitudes[row] = static_cast<float>(ClampToCodes(limit));
  }
}

void Camera::SetMagCorrection(int row, float correction) {
  if (row >= 0 && row < s_ZoomDependDescSize) m_MagCorrections[row] = correction;
}

float Camera::GetMagCorrection(int row) const {
  return row >= 0 && row < s_ZoomDependDescSize ? m_MagCorrections[row] : 0.0f;
}

void Camera::FillMagCorrectionsVector(SettingsData* settings) {
  const ChangesObject use(this, "Camera");
  std::array<float, kZoomDependRows> corrections = {};
  if (settings != nullptr) {
    const unsigned section = settings->GetCurSection();
    for (const ZoomDependDesc& desc : s_ZoomDependDesc) {
      short correction = 0;
      if (ReadFieldElement(*settings, desc.objectClass, desc.fieldId, 0, correction))
        corrections[desc.row] = correction;
    }
    settings->SetCurSection(section);
  }
  m_MagCorrections = corrections;
  RefreshLimitingMagnitudes();
}

void Camera::RefreshLimitMagnitude(int fieldId, int, const void* value) {
  const ChangesObject use(this, "Camera");
  const auto* desc = std::find_if(std::begin(s_ZoomDependDesc), std::end(s_ZoomDependDesc),
                                  [fieldId](const ZoomDependDesc& row) { return row.fieldId == fieldId; });
  if (desc != std::end(s_ZoomDependDesc) && value != nullptr) {
    short correction;
    std::memcpy(&correction, value, sizeof correction);
    m_MagCorrections[desc->row] = correction;
  }
  RefreshLimitingMagnitudes();
}

unsigned char Camera::GetDarkMagObject(int cls) const {
  return static_cast<unsigned char>(GetDarkMagObjectF(cls));
}

float Camera::GetDarkMagObjectF(int cls) const {
  const ReadsObject use(this, "Camera");
  const int row = FindZoomRow(s_ZoomDependDesc, cls, ZoomRows::kObjects);
  return row != kNoZoomRow ? m_LimitingMagnitudes[row] : 0.0f;
}

unsigned char Camera::GetDarkMagLabel(int cls) const {
  return static_cast<unsigned char>(GetDarkMagLabelF(cls));
}

float Camera::GetDarkMagLabelF(int cls) const {
  const ReadsObject use(this, "Camera");
  const int row = FindZoomRow(s_ZoomDependDesc, cls, ZoomRows::kLabels);
  return row != kNoZoomRow ? m_LimitingMagnitudes[row] : 0.0f;
}

float Camera::DrawThreshold(int row) const {
  return m_LimitingMagnitudes[row] - m_MagCorrections[row] +
         static_cast<float>(s_ZoomDependDesc[row].drawOffset);
}

unsigned char Camera::GetDarkMagDraw(int cls) const {
  const int row = FindZoomRow(s_ZoomDependDesc, cls, ZoomRows::kObjects);
  if (row == kNoZoomRow) return kNoClassCode;
  const int threshold = SaturatingTruncate(DrawThreshold(row), 0);
  if (static_cast<short>(threshold) > kMaxMagCode) return kMaxMagCode;
  // The low byte: a negative threshold wraps to a large one instead of stopping at 0. Deliberate; a large
  // correction thus shows everything.
  return static_cast<unsigned char>(threshold);
}

float Camera::GetDarkMagDrawF(int cls) const {
  const ReadsObject use(this, "Camera");
  const int row = FindZoomRow(s_ZoomDependDesc, cls, ZoomRows::kObjects);
  if (row == kNoZoomRow) return kNoClassCode;
  const float threshold = DrawThreshold(row);
  return std::isnan(threshold) ? 0.0f : std::min<float>(threshold, kMaxMagCode);
}

// The rule of the limits turned round: the zoom at which limit and draw offset together reach the code.
double Camera::CalcZoomForShowObject(int userType, double mag) const {
  const int row = FindZoomRow(s_ZoomDependDesc, GetBaseTypeByUser(userType), ZoomRows::kAll);
  if (row == kNoZoomRow) return -1.0;
  const ZoomDependDesc& desc = s_ZoomDependDesc[row];
  const int code =
      std::clamp(SaturatingTruncate((mag + kMagCodeOffset) * kMagCodesPerMag, 0), 0, kMaxMagCode);
  const double missing = code - kMagCodesPerMag * desc.base - desc.drawOffset;
  return std::pow(10.0, missing * 0.1 / desc.slope);
}

}  // namespace CommonInterfaces
