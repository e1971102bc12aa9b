// SPDX-License-Identifier: MIT
#include "db/rows/table_def.h"

#include <algorithm>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kUniqueIDDefault = "(abs(random() % 2147483647) + 1)";

std::string DeclaredType(const Field& field) {
  switch (field.Type) {
    case FieldType::Boolean:
      return "BOOLEAN INT";
    case FieldType::Byte:
      return "BYTE INT";
    case FieldType::Integer:
      return "SHORT INT";
    case FieldType::Long:
      return "LONG INT";
    case FieldType::Double:
      return "DOUBLE";
    case FieldType::Text:
      return fmt::format("TEXT({}) COLLATE NOCASE", field.Size);
    case FieldType::Memo:
      break;
  }
  return "MEMO TEXT COLLATE NOCASE";
}

bool HoldsText(const Field& field) {
  return field.Type == FieldType::Text || field.Type == FieldType::Memo;
}

std::string ZeroLengthCheck(std::string_view name) {
  return fmt::format("CHECK ({} <> '')", QuoteName(name));
}

std::string Column(const Field& field) {
  std::string column = QuoteName(field.Name) + " " + DeclaredType(field);
  if (field.IsUniqueID) column += fmt::format(" DEFAULT {}", kUniqueIDDefault);
  if (field.Type == FieldType::Boolean) column += " DEFAULT 0";
  if (HoldsText(field) && !field.AllowZeroLength) column += " " + ZeroLengthCheck(field.Name);
  return column;
}

// Most names of one length differ in their last letter already.
bool IsSpelled(std::string_view name, std::string_view field) {
  return name.size() == field.size() && !name.empty() && name.back() == field.back() &&
         name == field;
}

}  // namespace

std::optional<std::size_t> TableDef::Find(std::string_view field, std::size_t guess) const {
  // Most callers spell the name as the table does.
  for (std::size_t i = guess; i < Fields.size(); ++i) {
    if (IsSpelled(Fields[i].Name, field)) return i;
  }
  for (std::size_t i = 0; i < std::min(guess, Fields.size()); ++i) {
    if (IsSpelled(Fields[i].Name, field)) return i;
  }
  for (std::size_t i = 0; i < Fields.size(); ++i) {
    if (EqualIgnoringCase(Fields[i].Name, field)) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> TableDef::UniqueIDField() const {
  const auto found = std::find_if(Fields.begin(), Fields.end(),
                                  [](const Field& field) { return field.IsUniqueID; });
  if (found == Fields.end()) return std::nullopt;
  return static_cast<std::size_t>(found - Fields.begin());
}

std::string QuoteName(std::string_view name) {
  std::string quoted = "\"";
  for (char c : name) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::string CreateStatement(const TableDef& table, std::string_view schema) {
  std::string statement = "CREATE TABLE ";
  if (!schema.empty()) statement += QuoteName(schema) + ".";
  statement += QuoteName(table.Name) + " (";
  for (std::size_t i = 0; i < table.Fields.size(); ++i) {
    if (i > 0) statement += ", ";
    statement += Column(table.Fields[i]);
  }
  return statement + ")";
}

std::string CreateKeyStatement(const TableDef& table) {
  std::string fields;
  for (const std::string& field : table.PrimaryKey->Fields) {
    if (!fields.empty()) fields += ", ";
    fields += QuoteName(field);
  }
  return fmt::format("CREATE UNIQUE INDEX {} ON {} ({})",
                     QuoteName(table.Name + " key " + table.PrimaryKey->Name),
                     QuoteName(table.Name), fields);
}

std::string InsertStatement(const TableDef& table, std::size_t rows) {
  const std::size_t fields = table.Fields.size();
  std::string columns;
  std::string values;
  for (std::size_t parameter = 0; parameter < rows * fields; ++parameter) {
    const Field& field = table.Fields[parameter % fields];
    const bool isFirst = parameter % fields == 0;
    if (isFirst && parameter > 0) values += "),(";
    if (!values.empty() && values.back() != '(') values += ',';
    values += '?';
    if (parameter < fields) columns += (columns.empty() ? "" : ",") + QuoteName(field.Name);
  }
  return "INSERT INTO " + QuoteName(table.Name) + " (" + columns + ") VALUES (" + values + ")";
}

Field ReadField(std::string name, std::string_view declaredType, std::string_view defaultValue,
                std::string_view createStatement) {
  Field field;
  field.IsUniqueID = Contains(defaultValue, "random()");
  const std::string type = Ucase(declaredType);
  if (type == "BOOLEAN INT") {
    field.Type = FieldType::Boolean;
  } else if (type == "BYTE INT") {
    field.Type = FieldType::Byte;
  } else if (type == "SHORT INT") {
    field.Type = FieldType::Integer;
  } else if (type == "LONG INT") {
    field.Type = FieldType::Long;
  } else if (type == "DOUBLE") {
    field.Type = FieldType::Double;
  } else if (type.starts_with("TEXT(")) {
    field.Type = FieldType::Text;
    field.Size = static_cast<std::size_t>(Val(std::string_view(type).substr(5)));
  } else {
    field.Type = FieldType::Memo;
  }
  field.AllowZeroLength = HoldsText(field) && !Contains(createStatement, ZeroLengthCheck(name));
  field.Name = std::move(name);
  return field;
}

}  // namespace orrerix
