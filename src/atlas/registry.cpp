// SPDX-License-Identifier: MIT
#include "atlas/registry.h"

#include "atlas/families.h"
#include "db/values/text.h"

namespace orrerix {

const std::vector<AtlasTable>& AtlasTables() {
  static const std::vector<AtlasTable> kTables = {
      ShipsTable(),    GunsTable(),        TurretsTable(), MissilesTable(), MinesTable(),
      ShieldsTable(),  ThrustersTable(),   EnginesTable(), PowerTable(),    CountermeasuresTable(),
      ScannersTable(), CommoditiesTable(), BasesTable(),   SystemsTable(),  FactionsTable(),
      BribesTable()};
  return kTables;
}

const AtlasTable* FindAtlasTable(std::string_view id) {
  for (const AtlasTable& table : AtlasTables()) {
    if (EqualIgnoringCase(table.Id, id)) return &table;
  }
  return nullptr;
}

StoredTable ReadAtlasTable(const AtlasTable& table, const AtlasSource& source) {
  StoredTable rows;
  rows.Definition.Name = table.Title;
  for (const ColumnHead& column : table.Columns) {
    rows.Definition.Fields.emplace_back().Name = column.Head;
  }
  rows.Cells = table.Cells(source);
  return rows;
}

}  // namespace orrerix
