// SPDX-License-Identifier: MIT
#include "shell/language.h"

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "shell/files.h"
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

std::string FixedLanguage::Text(TextId id) {
  return std::string(TextIn(language_, id));
}

LanguageFile::LanguageFile(ErrorLog& log, const fs::path& applicationFolder,
                           JetVersionOption option, LanguageChoice& choice)
    : log_(log), path_(applicationFolder / "FLOX-Language.mdb"), option_(option), choice_(choice) {}

std::string LanguageFile::Text(TextId id) {
  const auto number = static_cast<int>(id);
  if (number >= kStoredTexts) return std::string(TextIn(Current(), id));
  std::string text;
  Routine routine(log_, "Settings.TXT", fmt::format("While reading setting: {}", number));
  routine.Run([&] {
    if (!FileExists(routine, path_)) InitLanguages();
    Database file = DBEngine::OpenDatabase(routine, path_);
    Recordset row = file.OpenRecordset(
        routine, fmt::format("SELECT * from Lang{} where ID ={{}}", static_cast<int>(Current())),
        {number});
    text = row.AtEnd() ? std::string(kMissingText) : row["Text"].Get().Text();
  });
  return text;
}

void LanguageFile::WriteText(FailureSink& sink, Database& file, std::string_view table,
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

void LanguageFile::SetLanguage(std::int16_t number, const TextColumns& texts) {
  Routine routine(log_, "Settings.SetLanguage", "While writing language-text");
  routine.Run([&] {
    Database file = DBEngine::OpenDatabase(routine, path_);
    WriteTexts(routine, file, number, texts);
  });
}

void LanguageFile::WriteTexts(Routine& routine, Database& file, std::int16_t number,
                              const TextColumns& texts) {
  for (std::size_t language = 0; language < texts.size(); ++language) {
    const TableDef table = LanguageTable(static_cast<int>(language));
    if (!file.HasTable(table.Name)) file.CreateTable(routine, table);
    WriteText(routine, file, table.Name, number, texts[language]);
  }
}

void LanguageFile::InitLanguages() {
  Routine routine(log_, "Settings.InitLanguages", "While writing default setting languages");
  routine.Run([&] {
    if (FileExists(routine, path_)) return Fill(routine, path_);
    BuildWhole(routine, log_, path_, [&](const fs::path& begun) {
      CreateFile(begun);
      Fill(routine, begun);
    });
  });
}

// The texts are written at every start, so they share one opened file and one transaction. If the
// program dies half way, the next start undoes that by the journal.
void LanguageFile::Fill(Routine& routine, const fs::path& path) {
  Database file = DBEngine::OpenDatabase(routine, path);
  if (file.IsOpen()) {
    file.ExecuteNative(routine, "PRAGMA synchronous = OFF");
    file.Begin(routine);
  }
  for (const LanguageText& text : StoredTexts()) {
    Routine one(log_, "Settings.SetLanguage", "While writing language-text");
    one.Run([&] { WriteTexts(one, file, static_cast<std::int16_t>(text.Id), text.In); });
  }
  if (file.IsOpen()) file.Commit(routine);
}

void LanguageFile::CreateLanguageFile() {
  CreateFile(path_);
}

void LanguageFile::CreateFile(const fs::path& path) {
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
