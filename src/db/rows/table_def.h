// SPDX-License-Identifier: MIT
// Definitions of tables, and how they stand in a database file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrerix {

// The engine's codes of field types.
enum class FieldType {
  Boolean = 1,
  Byte = 2,
  Integer = 3,
  Long = 4,
  Double = 7,
  Text = 10,
  Memo = 12
};

// The size that a Text field gets when none is asked for, in characters.
inline constexpr std::size_t kDefaultTextSize = 255;

struct Field {
  std::string Name;
  FieldType Type = FieldType::Text;
  std::size_t Size = kDefaultTextSize;  // characters; of Text fields only
  bool AllowZeroLength = false;         // of Text and Memo fields only
  bool IsUniqueID = false;              // default GenUniqueID(): a random positive number
};

// A key without doubles and without Null. It stands only while an import runs.
struct Index {
  std::string Name;
  std::vector<std::string> Fields;
  // Build this index lazily: no statement looks anything up by it, so after held rows it is made
  // only once another row comes or one of its fields changes.
  bool IsLate = false;
};

struct TableDef {
  std::string Name;
  std::vector<Field> Fields;
  std::optional<Index> PrimaryKey;

  // Place of the field that takes a unique ID; nothing if there is none.
  std::optional<std::size_t> UniqueIDField() const;

  // Place of a field, its name compared without case; nothing if there is none. It is looked
  // for from the place `guess` on.
  std::optional<std::size_t> Find(std::string_view field, std::size_t guess = 0) const;
};

// A name in the quotes of the engine's language, inner quotes doubled.
std::string QuoteName(std::string_view name);

// The statement that makes the table, in `schema` if that is not empty. The declared types
// describe the fields, so that any tool can read them back: "TEXT(20) COLLATE NOCASE" and so on.
std::string CreateStatement(const TableDef& table, std::string_view schema = {});

// The statement that makes the table's key.
std::string CreateKeyStatement(const TableDef& table);

// The statement that appends so many rows: parameter N is the Nth field of the first, and the
// parameters of the next row follow. They have no names, which the engine would keep a list of.
std::string InsertStatement(const TableDef& table, std::size_t rows = 1);

// Reads back what CreateStatement declared. A type that it never writes counts as Memo.
Field ReadField(std::string name, std::string_view declaredType, std::string_view defaultValue,
                std::string_view createStatement);

}  // namespace orrerix
