// SPDX-License-Identifier: MIT
// tables and table: what stands in the universe file.
#include <memory>

#include <fmt/format.h>

#include "cli/json_text.h"
#include "cli/value_json.h"
#include "cli/verbs.h"
#include "tables/table_choice.h"
#include "tables/table_formats.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

// As they were given.
struct TableArguments {
  std::string Name;
  std::optional<std::string> Columns;
  std::vector<std::string> Where;
  std::vector<std::string> Sort;
  std::optional<std::string> Limit;
  bool Csv = false;
};

int RunTables(const CommonOptions& options) {
  StopOnFailure stop;
  const Database universe = OpenFinishedFile(options.DatabasePath());
  Json answer = Json::array();
  for (const TableDef& table : universe.TableDefs(stop)) {
    const std::int64_t rows = universe.RowCount(stop, table.Name).value_or(0);
    if (options.Json) {
      answer.push_back({{"name", table.Name}, {"rows", rows}});
    } else {
      fmt::print("{:<32}{:>8}\n", table.Name, rows);
    }
  }
  if (options.Json) PrintJson(answer);
  return kDone;
}

// Throws WrongUsage for what no table could make sense of.
std::optional<std::size_t> RequireWellFormed(const CommonOptions& options,
                                             const TableArguments& arguments) {
  if (options.Json && arguments.Csv) throw WrongUsage("--csv does not go with --json");
  for (const std::string& condition : arguments.Where) {
    if (condition.find('=') == std::string::npos) {
      throw WrongUsage(fmt::format("--where needs COLUMN=TEXT, not '{}'", condition));
    }
  }
  if (!arguments.Limit) return std::nullopt;
  return static_cast<std::size_t>(
      ParseCount("--limit", *arguments.Limit, 0, std::numeric_limits<std::int64_t>::max()));
}

std::size_t RequireColumn(const TableDef& table, std::string_view name) {
  if (const auto column = table.Find(name)) return *column;
  throw NoSuch(fmt::format("column in table '{}' named", table.Name), name, NamesOf(table.Fields));
}

TableDef RequireTable(const Database& universe, std::string_view name) {
  StopOnFailure stop;
  std::vector<TableDef> tables = universe.TableDefs(stop);
  const auto found = FindTable(tables, name);
  if (!found) throw NoSuch("table", name, NamesOf(tables));
  return std::move(tables[*found]);
}

TableQuestion ParseQuestion(const TableDef& table, const TableArguments& arguments,
                            std::optional<std::size_t> limit) {
  TableQuestion question;
  question.Limit = limit;
  question.Columns = AllColumns(table);
  if (arguments.Columns) {
    question.Columns.clear();
    for (const std::string& name : SplitList(*arguments.Columns)) {
      question.Columns.push_back(RequireColumn(table, name));
    }
  }
  for (const std::string& condition : arguments.Where) {
    const std::size_t equals = condition.find('=');
    question.Where.push_back({RequireColumn(table, std::string_view(condition).substr(0, equals)),
                              condition.substr(equals + 1)});
  }
  for (std::string_view order : arguments.Sort) {
    const bool isDescending = !table.Find(order) && order.ends_with(kDescending);
    if (isDescending) order.remove_suffix(kDescending.size());
    question.Sort.push_back({RequireColumn(table, order), isDescending});
  }
  return question;
}

Json RowsJson(const TablePart& part) {
  Json rows = Json::array();
  for (const std::size_t row : part.Rows) {
    Json json = Json::object();
    for (const std::size_t column : part.Columns) {
      json[part.Table.Definition.Fields[column].Name] = ValueJson(part.Table.Row(row)[column]);
    }
    rows.push_back(std::move(json));
  }
  return rows;
}

int RunTable(const CommonOptions& options, const TableArguments& arguments) {
  const auto limit = RequireWellFormed(options, arguments);
  const Database universe = OpenFinishedFile(options.DatabasePath());
  const TableDef definition = RequireTable(universe, arguments.Name);
  const TableQuestion question = ParseQuestion(definition, arguments, limit);
  StopOnFailure stop;
  const StoredTable table = universe.ReadTable(stop, definition.Name);
  const TablePart part{table, question.Columns, ChosenRows(table, question)};
  if (options.Json) {
    PrintJson(RowsJson(part));
  } else {
    fmt::print("{}", arguments.Csv ? CsvOf(part) : AlignedText(part));
  }
  return kDone;
}

}  // namespace

void AddTableVerbs(CLI::App& app, const CommonOptions& options, Verb& run) {
  app.add_subcommand("tables", "The tables of the universe file, with their numbers of rows")
      ->callback([&options, &run] { run = [&options] { return RunTables(options); }; });
  auto arguments = std::make_shared<TableArguments>();
  CLI::App* verb = app.add_subcommand("table", "Rows of one table of the universe file");
  verb->add_option("NAME", arguments->Name, "The table")->required();
  AddText(*verb, "--columns", arguments->Columns, "Only these columns, in this order; default: all")
      ->type_name("A,B,...");
  AddRepeated(*verb, "--where", arguments->Where,
              "Only rows with this text; an empty one means none. May be repeated: all must hold")
      ->type_name("COLUMN=TEXT");
  AddRepeated(*verb, "--sort", arguments->Sort,
              "Order of the rows. May be repeated: the first one counts most")
      ->type_name("COLUMN[:desc]");
  AddText(*verb, "--limit", arguments->Limit, "Rows at most")->type_name("N");
  verb->add_flag("--csv", arguments->Csv, "Comma-separated values; not with --json");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunTable(options, *arguments); };
  });
}

}  // namespace orrerix
