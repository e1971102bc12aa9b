// SPDX-License-Identifier: MIT
// The report as one HTML document that needs no other file.
#include <fmt/format.h>

#include "diff/report.h"

namespace orrerix {
namespace {

constexpr std::string_view kStyle =
    "body{font-family:sans-serif;margin:2em auto;max-width:75em;padding:0 1em;color:#222;"
    "background:#fff}"
    "table{border-collapse:collapse;margin:.5em 0 1.5em}"
    "th,td{border:1px solid #ccc;padding:.25em .6em;text-align:left;vertical-align:top;"
    "white-space:pre-line}"
    "th{background:#eee}td.count{text-align:right}";

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        // A document holds no control characters but these.
        escaped += static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t' ? ' ' : c;
    }
  }
  return escaped;
}

std::string Code(const std::string& nickname) {
  return "<code>" + Escaped(nickname) + "</code>";
}

std::string Things(const ReportRow& row) {
  std::string text;
  for (const ReportThing& thing : row.Things) {
    if (!text.empty()) text += ", ";
    text += thing.Name.empty() ? Code(thing.Nickname)
                               : fmt::format("{} ({})", Escaped(thing.Name), Code(thing.Nickname));
  }
  if (row.Remark.empty()) return text;
  return fmt::format("{}{}<strong>{}</strong>", text, text.empty() ? "" : ": ", row.Remark);
}

void AppendChanged(std::string& text, const std::vector<ReportRow>& rows) {
  if (rows.empty()) return;
  text +=
      "<h3>Changed</h3>\n<table>\n"
      "<tr><th>What</th><th>Field</th><th>Old</th><th>New</th></tr>\n";
  for (const ReportRow& row : rows) {
    for (const ReportField& field : row.Fields) {
      text += fmt::format("<tr><td>{}</td><td>{}</td><td>{}</td><td>{}</td></tr>\n", Things(row),
                          Escaped(field.Column), Escaped(field.Old), Escaped(field.New));
    }
  }
  text += "</table>\n";
}

void AppendWhole(std::string& text, std::string_view caption, const std::vector<ReportRow>& rows,
                 std::string ReportField::*value) {
  if (rows.empty()) return;
  text += fmt::format("<h3>{}</h3>\n<table>\n<tr><th>What</th><th>Values</th></tr>\n", caption);
  for (const ReportRow& row : rows) {
    std::string values;
    for (const ReportField& field : row.Fields) {
      if (!values.empty()) values += "<br>";
      values += fmt::format("{}: {}", Escaped(field.Column), Escaped(field.*value));
    }
    text += fmt::format("<tr><td>{}</td><td>{}</td></tr>\n", Things(row), values);
  }
  text += "</table>\n";
}

void AppendTables(std::string& text, std::string_view caption,
                  const std::vector<std::string>& tables) {
  if (tables.empty()) return;
  std::string names;
  for (const std::string& table : tables) names += (names.empty() ? "" : ", ") + Code(table);
  text += fmt::format("<p>{}: {}</p>\n", caption, names);
}

void AppendSummary(std::string& text, const Report& report) {
  text += fmt::format("<p>{}.</p>\n", SummaryOf(report));
  AppendTables(text, "Tables added", report.TablesAdded);
  AppendTables(text, "Tables removed", report.TablesRemoved);
  if (report.Sections.empty()) return;
  text += "<table>\n<tr><th>Table</th><th>Added</th><th>Removed</th><th>Changed</th></tr>\n";
  for (const ReportSection& section : report.Sections) {
    text += fmt::format(
        "<tr><td>{}</td><td class=\"count\">{}</td><td class=\"count\">{}</td>"
        "<td class=\"count\">{}</td></tr>\n",
        Escaped(section.Table), section.Added.size(), section.Removed.size(),
        section.Changed.size());
  }
  text += "</table>\n";
}

}  // namespace

std::string HtmlReport(const Report& report) {
  const std::string title = fmt::format("From {} to {}", Escaped(report.Old), Escaped(report.New));
  std::string text = fmt::format(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>{}</title>\n"
      "<style>{}</style>\n</head>\n<body>\n<h1>{}</h1>\n",
      title, kStyle, title);
  AppendSummary(text, report);
  for (const ReportSection& section : report.Sections) {
    text += fmt::format("<h2>{}</h2>\n", Escaped(section.Table));
    AppendChanged(text, section.Changed);
    AppendWhole(text, "Added", section.Added, &ReportField::New);
    AppendWhole(text, "Removed", section.Removed, &ReportField::Old);
  }
  return text + "</body>\n</html>\n";
}

}  // namespace orrerix
