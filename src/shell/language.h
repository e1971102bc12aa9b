// SPDX-License-Identifier: MIT
// The language file and the language in use.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "db/engine.h"
#include "shell/error_log.h"

namespace orrerix {

class Routine;

// Where captions come from.
class TextSource {
 public:
  virtual ~TextSource() = default;

  // The text of a number in the current language, "?????" if there is none.
  virtual std::string TXT(int id) = 0;
};

// Texts straight from the program's table, for a fixed language.
class FixedLanguage : public TextSource {
 public:
  explicit FixedLanguage(int language) : language_(language) {}
  std::string TXT(int id) override;

 private:
  int language_;
};

// Texts read from "FLOX-Language.mdb" in the application folder: tables "Lang0" to "Lang9", of
// which the program fills three. A missing file is made anew.
class Language : public TextSource {
 public:
  Language(ErrorLog& log, const std::filesystem::path& applicationFolder, JetVersionOption option);

  std::string TXT(int id) override;

  // Writes one text into the three tables, over what stands there; a table that is missing is made.
  void SetLanguage(std::int16_t id, std::string_view english, std::string_view german,
                   std::string_view french);

  // Writes all texts, each as SetLanguage does; edits made to the file by hand are gone then. A
  // file that is missing appears when it is complete.
  void InitLanguages();

  // Builds the file with its ten empty tables.
  void CreateLanguageFile();

  const std::filesystem::path& Path() const { return path_; }

  // Number of the language in use; it selects the table.
  std::int16_t CurrentLanguage = 0;

 private:
  void CreateFile(const std::filesystem::path& path);
  void Fill(Routine& routine, const std::filesystem::path& path);
  void WriteTexts(Routine& routine, Database& file, std::int16_t id, std::string_view english,
                  std::string_view german, std::string_view french);
  void WriteText(FailureSink& sink, Database& file, std::string_view table, std::int16_t id,
                 std::string_view text);

  ErrorLog& log_;
  std::filesystem::path path_;
  JetVersionOption option_;
};

}  // namespace orrerix
