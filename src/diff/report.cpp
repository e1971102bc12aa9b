// SPDX-License-Identifier: MIT
#include "diff/report.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::size_t kMostThings = 3;

using Row = std::vector<Value>;

// The sections of a table's differences, row by row.
class SectionWriter {
 public:
  SectionWriter(const TableDiff& table, const NameBook& names) : table_(table), names_(names) {
    for (const std::size_t column : table.Key) {
      if (!EqualIgnoringCase(table.Columns[column], "SourceFileName")) things_.push_back(column);
    }
    sells_ = ColumnOf("Sell");
    stock_ = ColumnOf("val5");
    isPrices_ = EqualIgnoringCase(table.Name, "BaseGoodPrices");
    isMarket_ = EqualIgnoringCase(table.Name, "BaseGoods");
  }

  ReportSection Write() const {
    ReportSection section;
    section.Table = table_.Name;
    for (const ChangedRow& row : table_.Changed) section.Changed.push_back(Changed(row));
    for (const Row& row : table_.Added) section.Added.push_back(Added(row));
    for (const Row& row : table_.Removed) section.Removed.push_back(Removed(row));
    return section;
  }

 private:
  ReportRow Changed(const ChangedRow& row) const {
    ReportRow report{ThingsOf(row.New), MarketRemark(&row.Old, &row.New), {}};
    for (const std::size_t i : row.Fields) {
      report.Fields.push_back({table_.Columns[i], TextOf(row.Old[i]), TextOf(row.New[i])});
    }
    return report;
  }

  ReportRow Added(const Row& row) const {
    ReportRow report{ThingsOf(row), MarketRemark(nullptr, &row), {}};
    ForEachDetail(row, [&](const std::string& column, std::string text) {
      report.Fields.push_back({column, {}, std::move(text)});
    });
    return report;
  }

  ReportRow Removed(const Row& row) const {
    ReportRow report{ThingsOf(row), MarketRemark(&row, nullptr), {}};
    ForEachDetail(row, [&](const std::string& column, std::string text) {
      report.Fields.push_back({column, std::move(text), {}});
    });
    return report;
  }

  // The filled fields of a row that its things do not already say.
  template <typename Use>
  void ForEachDetail(const Row& row, Use use) const {
    const std::vector<std::size_t> told = ThingColumns(row);
    for (std::size_t i = 0; i < row.size(); ++i) {
      std::string text = TextOf(row[i]);
      if (text.empty() || std::find(told.begin(), told.end(), i) != told.end()) continue;
      use(table_.Columns[i], std::move(text));
    }
  }

  std::vector<std::size_t> ThingColumns(const Row& row) const {
    std::vector<std::size_t> columns;
    for (const std::size_t column : things_) {
      if (columns.size() < kMostThings && !row[column].Text().empty()) columns.push_back(column);
    }
    return columns;
  }

  std::vector<ReportThing> ThingsOf(const Row& row) const {
    std::vector<ReportThing> things;
    for (const std::size_t column : ThingColumns(row)) {
      const std::string text = row[column].Text();
      things.push_back({text, NameIn(row, column, text)});
    }
    return things;
  }

  // A name of its own identifies a row best.
  std::string NameIn(const Row& row, std::size_t column, const std::string& nickname) const {
    if (const std::string_view known = names_.NameOf(nickname); !known.empty()) {
      return std::string(known);
    }
    if (table_.Key.size() > 1 || column != table_.Key.front()) return {};
    for (const std::string_view own : {"realname", "Name"}) {
      if (const auto name = ColumnOf(own)) return row[*name].Text();
    }
    return {};
  }

  // A field's text, with the name of what it stands for.
  std::string TextOf(const Value& value) const {
    std::string text = value.Text();
    if (!value.IsText()) return text;
    const std::string_view name = names_.NameOf(text);
    const bool saysMore = !name.empty() && !EqualIgnoringCase(name, text);
    return saysMore ? fmt::format("{} ({})", text, name) : text;
  }

  // Whether a base sells the good of a row; nothing if the row is of no market.
  std::optional<bool> IsSold(const Row* row) const {
    if (row == nullptr) return false;
    if (isPrices_ && sells_) return (*row)[*sells_].Number() == 1;
    if (isMarket_ && stock_) return (*row)[*stock_].Number() == 0;
    return std::nullopt;
  }

  std::string MarketRemark(const Row* old, const Row* now) const {
    const auto before = IsSold(old);
    const auto after = IsSold(now);
    if (!before || !after) return {};
    if (*before && !*after) return "sold no more";
    if (!*before && *after) return "sold now";
    if (old == nullptr) return "bought now";
    if (now == nullptr) return "bought no more";
    return {};
  }

  std::optional<std::size_t> ColumnOf(std::string_view name) const {
    for (std::size_t i = 0; i < table_.Columns.size(); ++i) {
      if (EqualIgnoringCase(table_.Columns[i], name)) return i;
    }
    return std::nullopt;
  }

  const TableDiff& table_;
  const NameBook& names_;
  std::vector<std::size_t> things_;  // the columns that say what a row is about
  std::optional<std::size_t> sells_;
  std::optional<std::size_t> stock_;
  bool isPrices_ = false;
  bool isMarket_ = false;
};

}  // namespace

Report MakeReport(const UniverseDiff& diff, const NameBook& names, std::string old,
                  std::string now) {
  Report report;
  report.Old = std::move(old);
  report.New = std::move(now);
  report.Counts = diff.RowCounts();
  report.TablesAdded = diff.TablesAdded;
  report.TablesRemoved = diff.TablesRemoved;
  for (const TableDiff& table : diff.Tables) {
    report.Sections.push_back(SectionWriter(table, names).Write());
  }
  return report;
}

std::string SummaryOf(const Report& report) {
  if (report.Sections.empty() && report.TablesAdded.empty() && report.TablesRemoved.empty()) {
    return "No differences";
  }
  const UniverseDiff::Counts& counts = report.Counts;
  return fmt::format("{} {} added, {} removed, {} changed", counts.Added,
                     counts.Added == 1 ? "row" : "rows", counts.Removed, counts.Changed);
}

}  // namespace orrerix
