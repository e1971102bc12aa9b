// SPDX-License-Identifier: MIT
#include "shell/settings.h"

#include <array>
#include <optional>
#include <string_view>

#include "shell/files.h"
#include "shell/routine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr std::array<std::string_view, 13> kDefaultRows = {
    "INSERT INTO Settings VALUES ('SET1-0', 'Empty Backgrounds','0')",
    "INSERT INTO Settings VALUES ('SET1-1', 'System Backgrounds', '0')",
    "INSERT INTO Settings VALUES ('SET1-2', 'Jumpgate Lines', '1')",
    "INSERT INTO Settings VALUES ('SET1-3', 'Jumphole Lines', '1')",
    "INSERT INTO Settings VALUES ('SET1-4', 'Tradelane Lines', '1')",
    "INSERT INTO Settings VALUES ('SET1-5', 'System Names', '1')",
    "INSERT INTO Settings VALUES ('SET2-0', 'Empty Backgrounds', '1')",
    "INSERT INTO Settings VALUES ('SET2-1', 'System Backgrounds', '1')",
    "INSERT INTO Settings VALUES ('SET2-2', 'Jumpgate Lines', '1')",
    "INSERT INTO Settings VALUES ('SET2-3', 'Jumphole Lines', '1')",
    "INSERT INTO Settings VALUES ('SET2-4', 'Tradelane Lines', '1')",
    "INSERT INTO Settings VALUES ('SET2-5', 'System Names', '1')",
    "INSERT INTO Settings VALUES ('LANG', 'Language', '0')",
};

constexpr std::string_view kFind = "SELECT * from Settings WHERE ID = '{}'";

TableDef SettingsTable() {
  Field id{"ID", FieldType::Text, 15, false, false};
  Field text{"Text", FieldType::Memo, 0, true, false};
  Field value{"Value", FieldType::Memo, 0, true, false};
  return {"Settings", {id, text, value}, std::nullopt};
}

}  // namespace

Settings::Settings(ErrorLog& log, const fs::path& applicationFolder, JetVersionOption option)
    : log_(log), path_(applicationFolder / "FLOX-Settings.mdb"), option_(option) {}

std::string Settings::ReadSetting(const std::string& key) {
  // The first attempt may write a new file, which has all keys. A key still missing does not exist.
  for (int attempt = 0; attempt < 2; ++attempt) {
    std::optional<std::string> found;
    Routine routine(log_, "Settings.ReadSetting", "While reading setting: " + key);
    const bool finished = routine.Run([&] {
      if (!FileExists(routine, path_)) CreateSettings();
      Database settings = DBEngine::OpenDatabase(routine, path_);
      Recordset row = settings.OpenRecordset(routine, kFind, {key});
      if (!row.AtEnd()) {
        found = row["Value"].Get().Text();
        return;
      }
      settings.Close();
      DeleteFile(routine, path_);
    });
    if (found || !finished) return found.value_or("");
  }
  return {};
}

void Settings::WriteSettingValue(const std::string& key, const std::string& value) {
  Routine routine(log_, "Settings.WriteSettingValue", "While saveing settings");
  routine.Run([&] {
    Database settings = DBEngine::OpenDatabase(routine, path_);
    // The map is drawn after this: it need not wait for the disk.
    settings.ExecuteNative(routine, "PRAGMA synchronous = OFF");
    Recordset row = settings.OpenRecordset(routine, kFind, {key}, RecordsetType::Dynaset);
    if (row.AtEnd()) {
      row.AddNew();
      row["ID"] = key;
    } else {
      row.Edit();
    }
    row["Value"] = value;
    row.Update();
  });
}

void Settings::CreateSettings() {
  Routine routine(log_, "Settings.CreateSettings", "While creating default setting database");
  routine.Run([&] {
    if (FileExists(routine, path_)) return Create(routine, path_);
    BuildWhole(routine, log_, path_, [&](const fs::path& begun) { Create(routine, begun); });
  });
}

void Settings::Create(Routine& routine, const fs::path& path) {
  Database settings = DBEngine::CreateDatabase(routine, path, option_);
  settings.Begin(routine);
  settings.CreateTable(routine, SettingsTable());
  for (std::string_view row : kDefaultRows) settings.Execute(routine, row);
  settings.Commit(routine);
}

}  // namespace orrerix
