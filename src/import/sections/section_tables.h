// SPDX-License-Identifier: MIT
// The tables of sections that the program does not know: they grow a field for each new key.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "db/database.h"
#include "db/failure.h"
#include "db/rows/key_set.h"
#include "db/values/text.h"
#include "db/values/text_store.h"

namespace orrerix {

// One such table, kept in memory while files are read: adding a field to a stored table would read
// the whole schema anew each time. It is edited like a recordset, one row at a time; failed steps
// throw their Failure.
class SectionTable {
 public:
  using FieldIndex = std::size_t;

  explicit SectionTable(std::string name);

  const std::string& Name() const { return name_; }

  // The field of this name, looked for at the place `guess` first.
  std::optional<FieldIndex> FindField(std::string_view name, FieldIndex guess = 0) const;

  // Adds a Text field after the others. Throws 3191 for a field that every row has, whatever its
  // case, 3190 if the table is full, and 3125 for a name with a NUL.
  FieldIndex AddField(std::string_view name);

  // Makes `nickname` the table's key: without doubles (3022), without Null (3058).
  void MakeNicknameKey();

  // Begins a row; it gets the next number, which is not given again if the row is dropped.
  void AddNew();
  // Begins the change of the row with this number; throws 3021 if it was dropped.
  void Edit(std::int32_t rowID);
  bool IsEditing() const { return edited_.has_value(); }
  std::int32_t RowID() const { return rowID_; }

  // Content of a field of the row being edited, null if it has none.
  const std::string_view* Get(FieldIndex field) const;
  // Throws 3163 if the text is too long, 3315 if it is empty.
  void Set(FieldIndex field, std::string_view text);

  // Writes the row; whether it throws or not, no row is edited afterwards.
  void Update();
  void CancelUpdate();

  std::size_t RowCount() const { return rows_.size(); }

  // The table with Text fields of the engine's default size.
  TableDef Definition() const;

  // Length of the longest text in each field of the definition, characters; 0 for the row number.
  std::vector<std::size_t> LongestTexts() const;

  // Appends all rows to the table in a database that was made by a definition with these fields.
  void AppendTo(FailureSink& sink, Database& database, const TableDef& definition) const;

 private:
  struct Cell {
    FieldIndex Field;
    std::string_view Text;  // in the table's store
  };
  struct EditedRow {
    std::int32_t ID;
    std::vector<Cell> Cells;
    const std::string_view* Find(FieldIndex field) const;
  };

  // A row as it is kept. There may be a million of them.
  struct KeptCell {
    std::uint32_t Field;
    std::uint32_t Size;
    const char* Start;
    std::string_view Text() const { return {Start, Size}; }
  };
  struct Row {
    std::int32_t ID = 0;
    std::uint32_t Count = 0;
    const KeptCell* First = nullptr;
    std::span<const KeptCell> Cells() const { return {First, Count}; }
  };

  std::string_view KeepSourceFileName(std::string_view text);
  std::optional<std::string_view> KeyOf(const Row& row) const;
  std::optional<std::size_t> FindCell(FieldIndex field) const;
  void AddCell(const Cell& cell);
  bool HoldsKey(std::string_view key);
  void CheckKey(const EditedRow& row);

  std::string name_;
  std::vector<std::string> fields_;  // after OX_ID: SourceFileName and the keys
  std::unordered_map<std::string, FieldIndex, TextHash, std::equal_to<>> places_;
  std::optional<FieldIndex> keyField_;
  TextStore texts_;
  RunStore<KeptCell> cells_;
  std::vector<KeptCell> keeping_;    // of the row being written
  std::string_view sourceFileName_;  // of the last row
  KeySet keys_;
  std::vector<Row> rows_;
  std::optional<EditedRow> edited_;
  // Where the row being edited has a field, if it has it since this edit began.
  struct CellOfField {
    std::uint64_t Edit = 0;
    std::size_t Cell = 0;
  };
  std::vector<CellOfField> cellOf_;
  std::uint64_t edits_ = 0;
  std::optional<std::size_t> editedPlace_;  // of a row that is being changed
  std::int32_t rowID_ = 0;
  std::int32_t lastID_ = 0;
};

// All section tables of an import, in the order of their first appearance.
class SectionTables {
 public:
  // The table of a section. Made on first sight; throws 3010 for a name that is the program's
  // own, and 3125 for one with a NUL.
  SectionTable& Open(std::string_view name);

  const std::vector<std::unique_ptr<SectionTable>>& Tables() const { return tables_; }

  const SectionTable* Find(std::string_view name) const;

 private:
  std::vector<std::unique_ptr<SectionTable>> tables_;
  std::unordered_map<std::string, SectionTable*, TextHash, std::equal_to<>> byName_;
};

}  // namespace orrerix
