// SPDX-License-Identifier: MIT
#include "shell/language.h"

#include <fmt/format.h>

#include "db/number_text.h"
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
    if (!fs::exists(path_)) InitLanguages();
    Database file = DBEngine::OpenDatabase(routine, path_);
    Recordset row = file.OpenRecordset(
        routine, fmt::format("SELECT * from Lang{} where ID ={{}}", CurrentLanguage), {id});
    text = row.AtEnd() ? std::string(kMissingText) : row["Text"].Get().Text();
  });
  return text;
}

void Language::WriteText(FailureSink& sink, Database& file, std::string_view table,
                         std::int16_t id, std::string_view text) {
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
    WriteText(routine, file, "Lang0", id, english);
    WriteText(routine, file, "Lang1", id, german);
    WriteText(routine, file, "Lang2", id, french);
  });
}

void Language::InitLanguages() {
  Routine routine(log_, "Settings.InitLanguages", "While writing default setting languages");
  routine.Run([&] {
    if (!fs::exists(path_)) CreateLanguageFile();
    // One opened file and one transaction: the texts are written at every start.
    Database file = DBEngine::OpenDatabase(routine, path_);
    file.UseForBuilding(routine);
    file.Begin(routine);
    for (const LanguageText& text : LanguageTexts()) {
      const auto id = static_cast<std::int16_t>(text.ID);
      WriteText(routine, file, "Lang0", id, text.English);
      WriteText(routine, file, "Lang1", id, text.German);
      WriteText(routine, file, "Lang2", id, text.French);
    }
    file.Commit(routine);
  });
}

void Language::CreateLanguageFile() {
  Routine routine(log_, "Settings.CreateLanguageFile", "While creating language database");
  routine.Run([&] {
    Database file = DBEngine::CreateDatabase(routine, path_, option_);
    file.Begin(routine);
    for (int number = 0; number < kTables; ++number) {
      file.CreateTable(routine, LanguageTable(number));
    }
    file.Commit(routine);
  });
}

}  // namespace orrerix
