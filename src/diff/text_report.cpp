// SPDX-License-Identifier: MIT
// The report as plain text.
#include <fmt/format.h>

#include "diff/report.h"

namespace orrerix {
namespace {

// A text on one line.
std::string OneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const bool isBlank = static_cast<unsigned char>(c) <= ' ';
    if (isBlank && (line.empty() || line.back() == ' ')) continue;
    line += isBlank ? ' ' : c;
  }
  return line.empty() || line.back() != ' ' ? line : line.substr(0, line.size() - 1);
}

std::string Shown(const std::string& text) {
  return text.empty() ? "nothing" : OneLine(text);
}

std::string Things(const ReportRow& row) {
  std::string text;
  for (const ReportThing& thing : row.Things) {
    if (!text.empty()) text += ", ";
    text += thing.Name.empty() ? OneLine(thing.Nickname)
                               : fmt::format("{} ({})", OneLine(thing.Name), thing.Nickname);
  }
  if (row.Remark.empty()) return text;
  return text + (text.empty() ? "" : ": ") + row.Remark;
}

void AppendRows(std::string& text, char mark, const std::vector<ReportRow>& rows) {
  for (const ReportRow& row : rows) {
    text += fmt::format("  {} {}", mark, Things(row));
    for (const ReportField& field : row.Fields) {
      text += fmt::format("; {} ", field.Column);
      text += mark == '~' ? fmt::format("{} -> {}", Shown(field.Old), Shown(field.New))
                          : OneLine(mark == '+' ? field.New : field.Old);
    }
    text += '\n';
  }
}

void AppendTables(std::string& text, std::string_view caption,
                  const std::vector<std::string>& tables) {
  if (!tables.empty()) text += fmt::format("{}: {}\n", caption, fmt::join(tables, ", "));
}

}  // namespace

std::string PlainReport(const Report& report) {
  std::string text = fmt::format("From {} to {}: {}\n", report.Old, report.New, SummaryOf(report));
  AppendTables(text, "Tables added", report.TablesAdded);
  AppendTables(text, "Tables removed", report.TablesRemoved);
  for (const ReportSection& section : report.Sections) {
    text += fmt::format("\n{}: {} added, {} removed, {} changed\n", section.Table,
                        section.Added.size(), section.Removed.size(), section.Changed.size());
    AppendRows(text, '~', section.Changed);
    AppendRows(text, '+', section.Added);
    AppendRows(text, '-', section.Removed);
  }
  return text;
}

}  // namespace orrerix
