// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "output/database_record.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "common_interfaces/field_data.h"

namespace CommonInterfaces {

namespace {

// The value may stand at any address.
template <class T>
double LoadAs(const unsigned char* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return static_cast<double>(value);
}

double Load(const unsigned char* at, unsigned type) {
  switch (type) {
    case kFieldInt8:
      return LoadAs<signed char>(at);
    case kFieldUInt8:
    case kFieldBytes:
      return LoadAs<unsigned char>(at);
    case kFieldInt16:
      return LoadAs<short>(at);
    case kFieldUInt16:
      return LoadAs<unsigned short>(at);
    case kFieldInt32:
      return LoadAs<int>(at);
    case kFieldUInt32:
      return LoadAs<unsigned>(at);
    case kFieldFloat:
      return LoadAs<float>(at);
    case kFieldDouble:
      return LoadAs<double>(at);
    default:
      return std::nan("");  // not taken: see the callers
  }
}

}  // namespace

bool GetFieldNumbers(const BaseDB& record, int fieldId, double* values, int count) {
  const auto* field = static_cast<const unsigned char*>(record.GetField(fieldId));
  if (field == nullptr) return false;
  const unsigned type = record.GetFieldType(fieldId);
  const unsigned width = FieldElementWidth(type);
  for (int i = 0; i < count; ++i) {
    if (!std::isfinite(Load(field + i * width, type))) return false;
  }
  for (int i = 0; i < count; ++i) values[i] = Load(field + i * width, type);
  return true;
}

bool GetFieldNumber(const BaseDB& record, int fieldId, double& value) {
  const auto* field = static_cast<const unsigned char*>(record.GetField(fieldId));
  if (field == nullptr) return false;
  const double number = Load(field, record.GetFieldType(fieldId));
  if (!std::isfinite(number)) return false;
  value = number;
  return true;
}

bool GetFieldNumber(const BaseDB& record, int fieldId, float& value) {
  double wide = 0.0;
  if (!GetFieldNumber(record, fieldId, wide)) return false;
  if (std::abs(wide) > std::numeric_limits<float>::max()) return false;
  value = static_cast<float>(wide);
  return true;
}

}  // namespace CommonInterfaces
