// SPDX-License-Identifier: MIT
#include "diff/universe_diff.h"

#include <algorithm>
#include <map>

#include "db/values/text.h"
#include "diff/row_matching.h"
#include "tables/value_order.h"

namespace orrerix {
namespace {

// A table of two universes, its name in the form in which names compare.
struct TablePair {
  const StoredTable* Old = nullptr;
  const StoredTable* New = nullptr;
};

using TablePairs = std::map<std::string, TablePair>;

TablePairs PairTables(const std::vector<StoredTable>& old, const std::vector<StoredTable>& now,
                      const std::optional<std::set<std::string>>& only) {
  TablePairs pairs;
  const auto counts = [&](const std::string& name) {
    return name != "version" && name != "oxwarning" && (!only || only->contains(name));
  };
  for (const StoredTable& table : old) {
    const std::string name = FoldAscii(table.Definition.Name);
    if (counts(name)) pairs[name].Old = &table;
  }
  for (const StoredTable& table : now) {
    const std::string name = FoldAscii(table.Definition.Name);
    if (counts(name)) pairs[name].New = &table;
  }
  return pairs;
}

// Compares the rows of one table.
class TableComparison {
 public:
  TableComparison(const StoredTable& old, const StoredTable& now)
      : old_(old), new_(now), columns_(ColumnsThatCount(old.Definition, now.Definition)) {
    diff_.Name = now.Definition.Name;
    for (const SharedColumn& column : columns_) diff_.Columns.push_back(column.Name);
    diff_.Key = KeyColumns(old, now, columns_);
  }

  TableDiff Run() {
    const auto matches = MatchRows(old_, new_, columns_, diff_.Key);
    std::vector<bool> isKept(old_.RowCount());
    for (std::size_t row = 0; row < matches.size(); ++row) {
      if (matches[row]) {
        isKept[*matches[row]] = true;
        CompareRows(*matches[row], row);
      } else {
        diff_.Added.push_back(NewRow(row));
      }
    }
    for (std::size_t row = 0; row < isKept.size(); ++row) {
      if (!isKept[row]) diff_.Removed.push_back(OldRow(row));
    }
    return std::move(diff_);
  }

 private:
  void CompareRows(std::size_t old, std::size_t now) {
    std::vector<std::size_t> fields;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const SharedColumn& column = columns_[i];
      if (!IsSameValue(ValueAt(old_.Row(old), column.Old), ValueAt(new_.Row(now), column.New))) {
        fields.push_back(i);
      }
    }
    if (!fields.empty()) {
      diff_.Changed.push_back({OldRow(old), NewRow(now), std::move(fields)});
    }
  }

  std::vector<Value> OldRow(std::size_t row) const {
    std::vector<Value> values;
    for (const SharedColumn& column : columns_) {
      values.push_back(ValueAt(old_.Row(row), column.Old));
    }
    return values;
  }
  std::vector<Value> NewRow(std::size_t row) const {
    std::vector<Value> values;
    for (const SharedColumn& column : columns_) {
      values.push_back(ValueAt(new_.Row(row), column.New));
    }
    return values;
  }

  const StoredTable& old_;
  const StoredTable& new_;
  std::vector<SharedColumn> columns_;
  TableDiff diff_;
};

// The same table without rows, for the side that lacks it.
StoredTable WithoutRows(const StoredTable& table) {
  return {table.Definition, {}};
}

TableDiff ComparePair(const TablePair& pair) {
  if (pair.Old == nullptr) return TableComparison(WithoutRows(*pair.New), *pair.New).Run();
  if (pair.New == nullptr) return TableComparison(*pair.Old, WithoutRows(*pair.Old)).Run();
  return TableComparison(*pair.Old, *pair.New).Run();
}

}  // namespace

UniverseDiff::Counts UniverseDiff::RowCounts() const {
  Counts counts;
  for (const TableDiff& table : Tables) {
    counts.Added += table.Added.size();
    counts.Removed += table.Removed.size();
    counts.Changed += table.Changed.size();
  }
  return counts;
}

bool UniverseDiff::IsEmpty() const {
  return Tables.empty() && TablesAdded.empty() && TablesRemoved.empty();
}

std::vector<StoredTable> ReadAllTables(FailureSink& sink, const Database& universe) {
  std::vector<StoredTable> tables;
  for (const TableDef& table : universe.TableDefs(sink)) {
    tables.push_back(universe.ReadTable(sink, table.Name));
  }
  return tables;
}

UniverseDiff CompareUniverses(const std::vector<StoredTable>& old,
                              const std::vector<StoredTable>& now,
                              const std::optional<std::set<std::string>>& only) {
  UniverseDiff diff;
  for (const auto& [name, pair] : PairTables(old, now, only)) {
    if (pair.Old == nullptr) diff.TablesAdded.push_back(pair.New->Definition.Name);
    if (pair.New == nullptr) diff.TablesRemoved.push_back(pair.Old->Definition.Name);
    TableDiff table = ComparePair(pair);
    if (!table.IsEmpty()) diff.Tables.push_back(std::move(table));
  }
  return diff;
}

}  // namespace orrerix
