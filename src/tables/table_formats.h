// SPDX-License-Identifier: MIT
// Rows of a table as text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "db/rows/stored_table.h"

namespace orrerix {

// Columns and rows of a table, as places in it, in the order they are written.
struct TablePart {
  const StoredTable& Table;
  std::vector<std::size_t> Columns;
  std::vector<std::size_t> Rows;
};

// A field of a CSV file (RFC 4180), in quotes only where it holds a comma, a quote or a line end.
std::string CsvField(std::string_view text);

// The part as CSV: a head line with the columns' names, each line with its CR LF, Null as an empty
// field.
std::string CsvOf(const TablePart& part);

// The part in aligned columns under their names, for people: numbers at the right, line ends and
// tabs as blanks, texts of more than 40 characters cut there, with "..." for the rest.
std::string AlignedText(const TablePart& part);

}  // namespace orrerix
