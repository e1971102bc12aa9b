// SPDX-License-Identifier: MIT
// The report as Markdown.
#include <fmt/format.h>

#include "diff/report.h"

namespace orrerix {
namespace {

// A text that Markdown shows as it is, in one cell of a table.
std::string Escaped(const std::string& text) {
  constexpr std::string_view special = "\\`*_~[]<>|#&";
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (c == '\n' || c == '\r') {
      escaped += "<br>";
    } else if (static_cast<unsigned char>(c) < ' ') {
      escaped += ' ';
    } else {
      if (special.find(c) != std::string_view::npos) escaped += '\\';
      escaped += c;
    }
  }
  return escaped;
}

// A nickname as code. One that code cannot hold is a text like any other.
std::string Code(const std::string& nickname) {
  const bool isPlain = nickname.find_first_of("`|\\\r\n") == std::string::npos;
  return isPlain ? "`" + nickname + "`" : Escaped(nickname);
}

std::string Things(const ReportRow& row) {
  std::string text;
  for (const ReportThing& thing : row.Things) {
    if (!text.empty()) text += ", ";
    text += thing.Name.empty() ? Code(thing.Nickname)
                               : fmt::format("{} ({})", Escaped(thing.Name), Code(thing.Nickname));
  }
  if (row.Remark.empty()) return text;
  return fmt::format("{}{}**{}**", text, text.empty() ? "" : ": ", row.Remark);
}

void AppendChanged(std::string& text, const std::vector<ReportRow>& rows) {
  if (rows.empty()) return;
  text += "\n### Changed\n\n| What | Field | Old | New |\n|---|---|---|---|\n";
  for (const ReportRow& row : rows) {
    for (const ReportField& field : row.Fields) {
      text += fmt::format("| {} | {} | {} | {} |\n", Things(row), Escaped(field.Column),
                          Escaped(field.Old), Escaped(field.New));
    }
  }
}

void AppendWhole(std::string& text, std::string_view caption, const std::vector<ReportRow>& rows,
                 std::string ReportField::*value) {
  if (rows.empty()) return;
  text += fmt::format("\n### {}\n\n| What | Values |\n|---|---|\n", caption);
  for (const ReportRow& row : rows) {
    std::string values;
    for (const ReportField& field : row.Fields) {
      if (!values.empty()) values += "<br>";
      values += fmt::format("{}: {}", Escaped(field.Column), Escaped(field.*value));
    }
    text += fmt::format("| {} | {} |\n", Things(row), values);
  }
}

void AppendTables(std::string& text, std::string_view caption,
                  const std::vector<std::string>& tables) {
  if (tables.empty()) return;
  std::string names;
  for (const std::string& table : tables) names += (names.empty() ? "" : ", ") + Code(table);
  text += fmt::format("\n{}: {}\n", caption, names);
}

}  // namespace

std::string MarkdownReport(const Report& report) {
  std::string text = fmt::format("# From {} to {}\n\n{}.\n", Escaped(report.Old),
                                 Escaped(report.New), SummaryOf(report));
  AppendTables(text, "Tables added", report.TablesAdded);
  AppendTables(text, "Tables removed", report.TablesRemoved);
  if (!report.Sections.empty()) {
    text += "\n| Table | Added | Removed | Changed |\n|---|--:|--:|--:|\n";
  }
  for (const ReportSection& section : report.Sections) {
    text += fmt::format("| {} | {} | {} | {} |\n", Escaped(section.Table), section.Added.size(),
                        section.Removed.size(), section.Changed.size());
  }
  for (const ReportSection& section : report.Sections) {
    text += fmt::format("\n## {}\n", Escaped(section.Table));
    AppendChanged(text, section.Changed);
    AppendWhole(text, "Added", section.Added, &ReportField::New);
    AppendWhole(text, "Removed", section.Removed, &ReportField::Old);
  }
  return text;
}

}  // namespace orrerix
