// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace CommonInterfaces {

// The current record of a database, field by field. The application derives its database readers from this
// class. A field is known by its name id, GetUniqueID("VisMagnitude") for example (utils/text.h). One thread
// at a time.
class BaseDB {
 public:
  virtual ~BaseDB() = default;

  // The field's value in the encoding that GetFieldType names; texts are zero-terminated. It need not be
  // aligned. It belongs to the source and is valid until the source moves to another record. Null: the record
  // lacks it.
  virtual const void* GetField(int fieldId) const = 0;

  // The element type code of the field, the codes of settings fields. It means nothing when GetField gives
  // null.
  virtual unsigned GetFieldType(int fieldId) const = 0;
};

}  // namespace CommonInterfaces
