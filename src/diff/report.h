// SPDX-License-Identifier: MIT
// Differences as people read them: things by their names, what they were and what they are.
#pragma once

#include <string>
#include <vector>

#include "diff/name_book.h"
#include "diff/universe_diff.h"

namespace orrerix {

// Something that a row is about.
struct ReportThing {
  std::string Nickname;
  std::string Name;  // may be empty
};

// A field of a row. Of a row that was added only `New` is filled, of one that was removed `Old`.
struct ReportField {
  std::string Column;
  std::string Old;
  std::string New;
};

struct ReportRow {
  std::vector<ReportThing> Things;
  std::string Remark;  // what the difference means for players; may be empty
  std::vector<ReportField> Fields;
};

struct ReportSection {
  std::string Table;
  std::vector<ReportRow> Changed;
  std::vector<ReportRow> Added;
  std::vector<ReportRow> Removed;
};

struct Report {
  std::string Old;  // what was compared
  std::string New;
  UniverseDiff::Counts Counts;
  std::vector<std::string> TablesAdded;
  std::vector<std::string> TablesRemoved;
  std::vector<ReportSection> Sections;
};

// Writes differences as text. `old` and `now` name the two sides.
Report MakeReport(const UniverseDiff& diff, const NameBook& names, std::string old,
                  std::string now);

// "3 rows added, 1 removed, 2 changed", or "No differences" if there are none at all.
std::string SummaryOf(const Report& report);

// The report as plain text, as Markdown (tables as GitHub draws them), and as one self-contained
// HTML document. All three hold the same.
std::string PlainReport(const Report& report);
std::string MarkdownReport(const Report& report);
std::string HtmlReport(const Report& report);

}  // namespace orrerix
