// SPDX-License-Identifier: MIT
#include "atlas/page.h"

#include <fmt/format.h>

#include "atlas/registry.h"

namespace orrerix {

std::string ExplainAtlasTable(const AtlasTable& table) {
  std::string text =
      fmt::format("## {} (`{}`)\n\n{}\n\n| Column | Head | Content |\n|---|---|---|\n", table.Title,
                  table.Id, table.About);
  for (const ColumnHead& column : table.Columns) {
    text += fmt::format("| `{}` | {} | {} |\n", column.Id, column.Head, column.Formula);
  }
  return text;
}

std::string AtlasPage() {
  std::string page =
      "# Tables of the atlas\n\n"
      "What `orrerix-cli atlas` shows. Figures are those of the game's files, in the files' own "
      "units, rounded to 4 decimals.\nThey are as the import reads them: prices of goods are whole "
      "numbers, and a line like `price =5`, with a blank before the sign and none after it, loses "
      "the first character of its value.\nA field is empty where the files lack what its formula "
      "needs, and where a divisor is 0. `[Gun]` is a section of the files.\n\n"
      "This page is written by `orrerix-cli atlas --explain`.\n";
  for (const AtlasTable& table : AtlasTables()) page += "\n" + ExplainAtlasTable(table);
  return page;
}

}  // namespace orrerix
