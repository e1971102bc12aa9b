// SPDX-License-Identifier: MIT
#include "shell/language.h"

#include <array>

#include <fmt/format.h>

#include "db/number_text.h"
#include "shell/files.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr int kTables = 10;

TableDef LanguageTable(int number) {
  Field id{"ID", FieldType::Integer, 0, false, false};
  Field text{"Text", FieldType::Text, kDefaultTextSize, true, false};
  return {fmt::format("Lang{}", number), {id, text}, std::nullopt};
}

}  // namespace

std::string FixedLanguage::TXT(int id) {
  return std::string(TextIn(language_, id));
}

Language::Language(ErrorLog& log, const fs::path& applicationFolder, JetVersionOption option)
    : log_(log), path_(applicationFolder / "FLOX-Language.mdb"), option_(option) {}

std::string Language::TXT(int id) {
  std::string text;
  Routine routine(log_, "Settings.TXT", fmt::format("While reading setting: {}", id));
  routine.Run([&] {
    if (!FileExists(routine, path_)) InitLanguages();
    Database file = DBEngine::OpenDatabase(routine, path_);
    Recordset row = file.OpenRecordset(
        routine, fmt::format("SELECT * from Lang{} where ID ={{}}", CurrentLanguage), {id});
    text = row.AtEnd() ? std::string(kMissingText) : row["Text"].Get().Text();
  });
  return text;
}

void Language::WriteText(FailureSink& sink, Database& file, std::string_view table, std::int16_t id,
                         std::string_view text) {
  Recordset row = file.OpenRecordset(sink, fmt::format("SELECT * from {} where ID ={{}}", table),
                                     {id}, RecordsetType::Dynaset);
  if (row.AtEnd()) {
    row.AddNew();
    row["ID"] = id;
  } else {
    row.Edit();
  }
  row["Text"] = text;
  row.Update();
}

void Language::SetLanguage(std::int16_t id, std::string_view english, std::string_view german,
                           std::string_view french) {
  Routine routine(log_, "Settings.SetLanguage", "While writing language-text");
  routine.Run([&] {
    Database file = DBEngine::OpenDatabase(routine, path_);
    WriteTexts(routine, file, id, english, german, french);
  });
}

void Language::WriteTexts(Routine& routine, Database& file, std::int16_t id,
                          std::string_view english, std::string_view german,
                          std::string_view french) {
  const std::array<std::string_view, 3> texts = {english, german, french};
  for (int number = 0; number < static_cast<int>(texts.size()); ++number) {
    const TableDef table = LanguageTable(number);
    if (!file.HasTable(table.Name)) file.CreateTable(routine, table);
    WriteText(routine, file, table.Name, id, texts[static_cast<std::size_t>(number)]);
  }
}

void Language::InitLanguages() {
  Routine routine(log_, "Settings.InitLanguages", "While writing default setting languages");
  routine.Run([&] {
    if (FileExists(routine, path_)) return Fill(routine, path_);
    // A program that dies here leaves no file that looks finished.
    const fs::path begun = path_.string() + ".new";
    DeleteFile(routine, begun);
    CreateFile(begun);
    Fill(routine, begun);
    RenameFile(routine, begun, path_);
  });
}

// One opened file and one transaction: the texts are written at every start. Its journal lets the
// next start take back what a program that dies leaves half done.
void Language::Fill(Routine& routine, const fs::path& path) {
  Database file = DBEngine::OpenDatabase(routine, path);
  if (file.IsOpen()) {
    file.ExecuteNative(routine, "PRAGMA synchronous = OFF");
    file.Begin(routine);
  }
  for (const LanguageText& text : LanguageTexts()) {
    Routine one(log_, "Settings.SetLanguage", "While writing language-text");
    one.Run([&] {
      WriteTexts(one, file, static_cast<std::int16_t>(text.ID), text.English, text.German,
                 text.French);
    });
  }
  if (file.IsOpen()) file.Commit(routine);
}

void Language::CreateLanguageFile() {
  CreateFile(path_);
}

void Language::CreateFile(const fs::path& path) {
  Routine routine(log_, "Settings.CreateLanguageFile", "While creating language database");
  routine.Run([&] {
    Database file = DBEngine::CreateDatabase(routine, path, option_);
    file.Begin(routine);
    for (int number = 0; number < kTables; ++number) {
      file.CreateTable(routine, LanguageTable(number));
    }
    file.Commit(routine);
  });
}

}  // namespace orrerix
