// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers of the current record of a database, whatever their encoding.
#pragma once

#include "common_interfaces/record_source.h"

namespace CommonInterfaces {

// Writes the field's first value to `value`. False, and `value` untouched, when the record lacks the field,
// its type code is none, or the value is not a finite number.
bool GetFieldNumber(const BaseDB& record, int fieldId, double& value);

// The same for `count` values that stand one behind the other: all of them or none.
bool GetFieldNumbers(const BaseDB& record, int fieldId, double* values, int count);

// The same; a value beyond the range of a float is not taken.
bool GetFieldNumber(const BaseDB& record, int fieldId, float& value);

}  // namespace CommonInterfaces
