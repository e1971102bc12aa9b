// SPDX-License-Identifier: MIT
// A game folder on disk and an import that reads it into a universe in memory.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/import_state.h"
#include "import/ini/ini_reader.h"
#include "support/temp_folder.h"
#include "support/universe_fixture.h"

namespace orrerix {

// A text with the line ends of the game's files, out of one with plain ones.
inline std::string WithCrLf(std::string_view text) {
  std::string lines;
  for (const char c : text) {
    if (c == '\n') lines += '\r';
    lines += c;
  }
  return lines;
}

class ReaderFixture : public UniverseFixture {
 protected:
  // Puts a file into the game folder and reads it. The bytes are taken as they stand.
  void ReadBytes(std::string_view bytes, const std::string& system = {}) {
    folder.Write("data/test.ini", bytes);
    ReadINI(import, Path("\\data\\test.ini"), system);
  }

  // The same with a text whose line ends become those of the game's files.
  void Read(std::string_view text, const std::string& system = {}) {
    ReadBytes(WithCrLf(text), system);
  }

  std::string Path(std::string_view below) const { return game.Text() + std::string(below); }

  // Writes the section tables into the universe, where Rows and FieldNames see them.
  void StoreSections() {
    for (const auto& table : import.Sections.Tables()) {
      db.CreateTable(mustWork, table->Definition());
      table->AppendTo(mustWork, db, table->Definition());
    }
    import.Sections = {};
  }

  std::vector<std::string> TableNames() {
    std::vector<std::string> names;
    for (const TableDef& table : db.TableDefs(mustWork)) names.push_back(table.Name);
    return names;
  }

  std::vector<std::string> FieldNames(std::string_view table) {
    std::vector<std::string> names;
    for (const TableDef& definition : db.TableDefs(mustWork)) {
      if (definition.Name != table) continue;
      for (const Field& field : definition.Fields) names.push_back(field.Name);
    }
    return names;
  }

  std::vector<int> FailureNumbers() const {
    std::vector<int> numbers;
    for (const FailureEntry& entry : log.Failures()) numbers.push_back(entry.What.Number);
    return numbers;
  }

  TempFolder folder;
  GameFolder game{folder.Path().string()};
  Import import{universe, game, host, {}, {}};
};

}  // namespace orrerix
