// SPDX-License-Identifier: MIT
// Values of blocks on their way into the tables.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "db/rows/recordset.h"
#include "db/values/number_text.h"
#include "import/ini/block_text.h"
#include "import/ini/ini_text.h"
#include "import/resources/windows1252.h"
#include "shell/routine.h"

namespace orrerix {

// A text of the files as the tables hold it.
inline std::string Text(std::string_view bytes) {
  return FromWindows1252(bytes);
}

inline std::string TextValue(const BlockText& block, std::string_view upperKey) {
  return Text(block.Value(upperKey));
}

// The value of a key on its own, or an empty text if that fails.
inline std::string TextOr(Routine& routine, const BlockText& block, std::string_view upperKey) {
  return routine.Or(std::string(), [&] { return TextValue(block, upperKey); });
}

// A key of a block and the field that takes it.
struct KeyField {
  std::string_view Key;
  std::string_view FieldName;
};

// Assign the values of keys, in their order, as texts or as numbers; 0 where no number is. Each
// assignment is a statement of its own.
inline void AssignTexts(Recordset& row, const BlockText& block,
                        std::initializer_list<KeyField> keys) {
  Windows1252Reader reader;
  for (const auto& [key, field] : keys)
    row[field] = [&, wanted = key] { return reader.Utf8(block.Value(wanted)); };
}

inline void AssignNumbers(Recordset& row, const BlockText& block,
                          std::initializer_list<KeyField> keys) {
  for (const auto& [key, field] : keys) row[field] = Val(block.Value(key));
}

// Numbers at the start of a text and after each further comma; 0 where none is left.
inline std::array<double, 3> ThreeNumbers(std::string_view text) {
  std::array<double, 3> numbers{};
  for (double& number : numbers) {
    number = Val(text);
    text = CutAtComma(text).After;
  }
  return numbers;
}

}  // namespace orrerix
