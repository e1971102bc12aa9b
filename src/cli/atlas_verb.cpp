// SPDX-License-Identifier: MIT
// atlas: the tables for players.
#include <algorithm>
#include <memory>

#include <fmt/format.h>

#include "atlas/filter.h"
#include "atlas/hardpoints.h"
#include "atlas/page.h"
#include "atlas/registry.h"
#include "cli/json_text.h"
#include "cli/value_json.h"
#include "cli/verbs.h"
#include "tables/table_choice.h"
#include "tables/table_formats.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

// As they were given.
struct AtlasArguments {
  std::optional<std::string> Table;
  std::optional<std::string> Columns;
  std::vector<std::string> Filters;
  std::optional<std::string> Fits;
  std::vector<std::string> Sort;
  bool Csv = false;
  bool Explain = false;

  bool HasChoice() const { return Columns || !Filters.empty() || Fits || !Sort.empty() || Csv; }
};

// A filter with the place of its column.
struct Condition {
  std::size_t Column;
  Filter Wanted;
};

std::vector<Filter> ParseFilters(const AtlasArguments& arguments) {
  std::vector<Filter> filters;
  for (const std::string& text : arguments.Filters) {
    const auto filter = ParseFilter(text);
    if (!filter) {
      throw WrongUsage(
          fmt::format("--filter needs COLUMN=TEXT, COLUMN~PART or COLUMN>NUMBER, also "
                      "with !=, !~, <, <= and >=, not '{}'",
                      text));
    }
    filters.push_back(*filter);
  }
  return filters;
}

void RequireWellFormed(const CommonOptions& options, const AtlasArguments& arguments) {
  if (options.Json && arguments.Csv) throw WrongUsage("--csv does not go with --json");
  if (arguments.Explain && (options.Json || arguments.HasChoice())) {
    throw WrongUsage("--explain goes with a table only");
  }
  if (!arguments.Table && arguments.HasChoice()) {
    throw WrongUsage("--columns, --filter, --fits, --sort and --csv need a table");
  }
}

const AtlasTable& RequireTable(const std::string& id) {
  if (const AtlasTable* table = FindAtlasTable(id)) return *table;
  std::vector<std::string> known;
  for (const AtlasTable& table : AtlasTables()) known.push_back(table.Id);
  throw NoSuch("table of the atlas named", id, known);
}

std::size_t RequireColumn(const AtlasTable& table, std::string_view id) {
  if (const auto column = table.Find(id)) return *column;
  std::vector<std::string> known;
  for (const ColumnHead& column : table.Columns) known.push_back(column.Id);
  throw NoSuch(fmt::format("column in table '{}' named", table.Id), id, known);
}

// Columns and order; an order may stand on a column that is not shown.
TableQuestion ParseQuestion(const AtlasTable& table, const AtlasArguments& arguments) {
  TableQuestion question;
  if (arguments.Columns) {
    for (const std::string& id : SplitList(*arguments.Columns)) {
      question.Columns.push_back(RequireColumn(table, id));
    }
  } else {
    for (std::size_t i = 0; i < table.Columns.size(); ++i) question.Columns.push_back(i);
  }
  for (std::string_view order : arguments.Sort) {
    const bool isDescending = order.ends_with(kDescending);
    if (isDescending) order.remove_suffix(kDescending.size());
    question.Sort.push_back({RequireColumn(table, order), isDescending});
  }
  return question;
}

std::optional<ShipMounts> RequireShip(const AtlasTable& table, const AtlasSource& source,
                                      const std::optional<std::string>& name) {
  if (!name) return std::nullopt;
  if (!HardpointColumnOf(table)) {
    throw WrongUsage(
        fmt::format("--fits does not go with table '{}': it has no hardpoint types", table.Id));
  }
  if (const auto ship = FindShip(source.Tables, *name)) return ShipMounts(source.Tables, *ship);
  std::vector<std::string> known;
  const SourceTable& ships = source.Tables["Ships"];
  for (std::size_t i = 0; i < ships.RowCount(); ++i) {
    known.push_back(ships.Row(i).Text("NickName"));
    known.push_back(ships.Row(i).Text("RealName"));
  }
  throw NoSuch("ship", *name, known);
}

// The rows that meet all conditions and, if a ship is given, fit it.
StoredTable Filtered(const StoredTable& rows, const std::vector<Condition>& conditions,
                     const std::optional<ShipMounts>& ship,
                     const std::optional<std::size_t>& hardpoint) {
  StoredTable left{rows.Definition, {}};
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.Row(i);
    const bool isWanted =
        std::all_of(conditions.begin(), conditions.end(), [row](const Condition& condition) {
          return Meets(row[condition.Column], condition.Wanted);
        });
    if (!isWanted || (ship && !Fits(row[*hardpoint], *ship))) continue;
    left.Cells.insert(left.Cells.end(), row.begin(), row.end());
  }
  return left;
}

Json RowsJson(const AtlasTable& table, const TablePart& part) {
  Json rows = Json::array();
  for (const std::size_t row : part.Rows) {
    Json json = Json::object();
    for (const std::size_t column : part.Columns) {
      json[table.Columns[column].Id] = ValueJson(part.Table.Row(row)[column]);
    }
    rows.push_back(std::move(json));
  }
  return rows;
}

int ListTables(const CommonOptions& options, const AtlasSource& source) {
  Json answer = Json::array();
  for (const AtlasTable& table : AtlasTables()) {
    const std::size_t rows = ReadAtlasTable(table, source).RowCount();
    if (options.Json) {
      answer.push_back({{"name", table.Id}, {"title", table.Title}, {"rows", rows}});
    } else {
      fmt::print("{:<16}{:<24}{:>8}\n", table.Id, table.Title, rows);
    }
  }
  if (options.Json) PrintJson(answer);
  return kDone;
}

int ShowTable(const CommonOptions& options, const AtlasArguments& arguments,
              const AtlasTable& table, const std::vector<Filter>& filters,
              const AtlasSource& source) {
  const TableQuestion question = ParseQuestion(table, arguments);
  std::vector<Condition> conditions;
  conditions.reserve(filters.size());
  for (const Filter& filter : filters) {
    conditions.push_back({RequireColumn(table, filter.Column), filter});
  }
  const auto ship = RequireShip(table, source, arguments.Fits);
  const StoredTable rows =
      Filtered(ReadAtlasTable(table, source), conditions, ship, HardpointColumnOf(table));
  const TablePart part{rows, question.Columns, ChosenRows(rows, question)};
  if (options.Json) {
    PrintJson(RowsJson(table, part));
  } else {
    fmt::print("{}", arguments.Csv ? CsvOf(part) : AlignedText(part));
  }
  return kDone;
}

int RunAtlas(const CommonOptions& options, const AtlasArguments& arguments) {
  RequireWellFormed(options, arguments);
  const std::vector<Filter> filters = ParseFilters(arguments);
  const AtlasTable* table = arguments.Table ? &RequireTable(*arguments.Table) : nullptr;
  if (arguments.Explain) {
    fmt::print("{}", table ? ExplainAtlasTable(*table) : AtlasPage());
    return kDone;
  }
  const Database universe = OpenFinishedFile(options.DatabasePath());
  StopOnFailure stop;
  const AtlasSource source(stop, universe);
  return table ? ShowTable(options, arguments, *table, filters, source)
               : ListTables(options, source);
}

}  // namespace

void AddAtlasVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<AtlasArguments>();
  CLI::App* verb =
      app.add_subcommand("atlas", "Tables for players: ships, guns, commodities, bases and so on");
  AddText(*verb, "TABLE", arguments->Table, "The table; default: the list of tables");
  AddText(*verb, "--columns", arguments->Columns, "Only these columns, in this order; default: all")
      ->type_name("A,B,...");
  AddRepeated(*verb, "--filter", arguments->Filters,
              "Only rows for which this holds: COLUMN=TEXT, COLUMN~PART or COLUMN>NUMBER, also "
              "with !=, !~, <, <=, >=. May be repeated: all must hold")
      ->type_name("EXPR");
  AddText(*verb, "--fits", arguments->Fits,
          "Only equipment that a hardpoint of this ship takes: nickname or name")
      ->type_name("SHIP");
  AddRepeated(*verb, "--sort", arguments->Sort,
              "Order of the rows. May be repeated: the first one counts most")
      ->type_name("COLUMN[:desc]");
  verb->add_flag("--csv", arguments->Csv, "Comma-separated values; not with --json");
  verb->add_flag("--explain", arguments->Explain,
                 "The columns of the table, or of all, with their formulas");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunAtlas(options, *arguments); };
  });
}

}  // namespace orrerix
