// SPDX-License-Identifier: MIT
// The program's settings: twelve display switches and the language.
#pragma once

#include <filesystem>
#include <string>

#include "db/engine/engine.h"
#include "shell/error_log.h"

namespace orrerix {

class Routine;

// Rows of "FLOX-Settings.mdb" in the application folder, opened again for each call. A missing
// file, or one that lacks a key, is made again with the defaults.
class Settings {
 public:
  Settings(ErrorLog& log, const std::filesystem::path& applicationFolder, JetVersionOption option);

  // The value of a key. A key that the file lacks costs all others their values, too. Empty if it
  // cannot be read, and for a key that is none of the thirteen.
  std::string ReadSetting(const std::string& key);

  // Stores a value; a new row has no description. The file must be there.
  void WriteSettingValue(const std::string& key, const std::string& value);

  // Builds the file with its thirteen rows. A file that is missing appears when it is complete.
  void CreateSettings();

  const std::filesystem::path& Path() const { return path_; }

 private:
  void Create(Routine& routine, const std::filesystem::path& path);

  ErrorLog& log_;
  std::filesystem::path path_;
  JetVersionOption option_;
};

}  // namespace orrerix
