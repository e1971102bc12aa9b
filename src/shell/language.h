// SPDX-License-Identifier: MIT
// The language file and the language in use.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "db/engine/engine.h"
#include "shell/error_log.h"
#include "shell/language_texts.h"

namespace orrerix {

class Routine;

// Where captions come from.
class TextSource {
 public:
  virtual ~TextSource() = default;

  // The text in the language in use; "?????" for one of the language file that it lacks.
  virtual std::string Text(TextId id) = 0;
};

// Texts straight from the program's table, for a fixed language.
class FixedLanguage : public TextSource {
 public:
  explicit FixedLanguage(Language language) : language_(language) {}
  std::string Text(TextId id) override;

 private:
  Language language_;
};

// Texts read from "FLOX-Language.mdb" in the application folder: tables "Lang0" to "Lang9", of
// which the program fills one for each language. A missing file is created.
class LanguageFile : public TextSource {
 public:
  // `choice` must outlive this.
  LanguageFile(ErrorLog& log, const std::filesystem::path& applicationFolder,
               JetVersionOption option, LanguageChoice& choice);

  // Texts that the file does not keep come from the program's table.
  std::string Text(TextId id) override;

  // Writes one text into the table of each language, over what stands there; a table that is
  // missing is made. `number` is that of a TextId, or one of an editor's own.
  void SetLanguage(std::int16_t number, const TextColumns& texts);

  // Writes all texts, each as SetLanguage does; edits made to the file by hand are gone then. A
  // file that is missing appears when it is complete.
  void InitLanguages();

  // Builds the file with its ten empty tables.
  void CreateLanguageFile();

  const std::filesystem::path& Path() const { return path_; }

  // The language in use selects the table.
  Language Current() const { return choice_.Current; }
  void SetCurrent(Language language) { choice_.Current = language; }

 private:
  void CreateFile(const std::filesystem::path& path);
  void Fill(Routine& routine, const std::filesystem::path& path);
  void WriteTexts(Routine& routine, Database& file, std::int16_t number, const TextColumns& texts);
  void WriteText(FailureSink& sink, Database& file, std::string_view table, std::int16_t number,
                 std::string_view text);

  ErrorLog& log_;
  std::filesystem::path path_;
  JetVersionOption option_;
  LanguageChoice& choice_;
};

}  // namespace orrerix
