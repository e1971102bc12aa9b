// SPDX-License-Identifier: MIT
#include "tables/table_formats.h"

#include <algorithm>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::size_t kLongestText = 40;
constexpr std::string_view kCut = "...";
constexpr std::string_view kColumnGap = "  ";

// A text on one line, cut if it is long.
std::string ShortText(std::string_view text) {
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isFirstOfTwo = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (isFirstOfTwo) continue;
    line += static_cast<unsigned char>(text[i]) < ' ' ? ' ' : text[i];
  }
  if (Len(line) <= kLongestText) return line;
  return std::string(Left(line, kLongestText)).append(kCut);
}

// One column of text with its width in characters.
struct TextColumn {
  std::vector<std::string> Cells;  // the first is the name
  bool IsNumeric = true;
  std::size_t Width = 0;

  void Add(std::string cell) {
    Width = std::max(Width, Len(cell));
    Cells.push_back(std::move(cell));
  }
};

TextColumn ColumnOf(const TablePart& part, std::size_t column) {
  TextColumn text;
  text.Add(ShortText(part.Table.Definition.Fields[column].Name));
  for (const std::size_t row : part.Rows) {
    const Value& value = part.Table.Row(row)[column];
    text.IsNumeric = text.IsNumeric && !value.IsText();
    text.Add(ShortText(value.Text()));
  }
  return text;
}

std::string LineOf(const std::vector<TextColumn>& columns, std::size_t line) {
  std::string text;
  for (const TextColumn& column : columns) {
    if (&column != &columns.front()) text += kColumnGap;
    const std::string& cell = column.Cells[line];
    const std::string blanks(column.Width - Len(cell), ' ');
    text += column.IsNumeric ? blanks + cell : cell + blanks;
  }
  text.erase(text.find_last_not_of(' ') + 1);
  return text + '\n';
}

}  // namespace

std::string CsvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::string CsvOf(const TablePart& part) {
  std::string csv;
  const auto addLine = [&](auto&& textOf) {
    for (std::size_t i = 0; i < part.Columns.size(); ++i) {
      if (i > 0) csv += ',';
      csv += CsvField(textOf(part.Columns[i]));
    }
    csv += "\r\n";
  };
  addLine([&](std::size_t column) { return part.Table.Definition.Fields[column].Name; });
  for (const std::size_t row : part.Rows) {
    addLine([&](std::size_t column) { return part.Table.Row(row)[column].Text(); });
  }
  return csv;
}

std::string AlignedText(const TablePart& part) {
  std::vector<TextColumn> columns;
  for (const std::size_t column : part.Columns) columns.push_back(ColumnOf(part, column));
  std::string text;
  for (std::size_t line = 0; line <= part.Rows.size(); ++line) text += LineOf(columns, line);
  return text;
}

}  // namespace orrerix
