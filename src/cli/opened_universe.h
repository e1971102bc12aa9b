// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"
#include "import/universe.h"
#include "shell/language.h"
#include "shell/version.h"

namespace orrerix {

// The finished universe file, open for reading, with the failure policy and the language that the
// arguments ask for. Throws CouldNot if the file cannot be read.
class OpenedUniverse {
 public:
  explicit OpenedUniverse(const CommonOptions& options)
      : Texts(options.CaptionLanguage()),
        database_(OpenUniverse(options)),
        messages_(options),
        log_(messages_, CurrentVersion()) {}
  OpenedUniverse(const OpenedUniverse&) = delete;
  OpenedUniverse& operator=(const OpenedUniverse&) = delete;

  FixedLanguage Texts;

 private:
  Database database_;
  PolicyMessageBoxes messages_;
  ErrorLog log_;

 public:
  Universe Data{log_, database_};
};

}  // namespace orrerix
