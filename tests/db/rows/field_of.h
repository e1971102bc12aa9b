// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "db/rows/table_def.h"

namespace orrerix {

// A field of a table that a test makes.
inline Field Of(std::string name, FieldType type, bool allowZeroLength = false) {
  Field field;
  field.Name = std::move(name);
  field.Type = type;
  field.AllowZeroLength = allowZeroLength;
  return field;
}

}  // namespace orrerix
