// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <cstdio>

#include <fmt/format.h>

#include "db/working_copy.h"
#include "platform/native_registry.h"
#include "shell/game_registry.h"
#include "shell/startup.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// Turns the first failure into the verb's own.
class Stop : public FailureSink {
 public:
  void Fail(const Failure& failure) override { throw CouldNot(failure.Description); }
};

}  // namespace

MessageAnswer PolicyMessageBoxes::Show(const Message& message) {
  fmt::print(stderr, "{}{}{}\n", message.Title, message.Title.empty() ? "" : "\n", message.Text);
  if (message.Buttons == MessageButtons::AbortRetryIgnore) {
    return options_.OnFailure == "ok" ? MessageAnswer::Ignore : MessageAnswer::Abort;
  }
  return options_.OnFailure == "ok" ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

fs::path CommonOptions::DatabasePath() const {
  if (!Database.empty()) return Database;
  PolicyMessageBoxes messages(*this);
  ErrorLog log(messages, CurrentVersion());
  const auto registry = NativeRegistry();
  return SaveFolderBelow(GameRegistry(log, *registry).GetPersonalFolder()) / "Orrerix.fl";
}

int CommonOptions::LanguageNumber() const {
  return Language == "de" ? 1 : Language == "fr" ? 2 : 0;
}

Database OpenUniverse(const CommonOptions& options) {
  const fs::path path = options.DatabasePath();
  std::error_code error;
  if (!fs::exists(path, error)) {
    throw CouldNot(fmt::format("there is no universe file '{}'; 'import' makes one",
                               path.string()));
  }
  Stop stop;
  WorkingCopy copy;
  Database universe = copy.Of(stop, path);
  Recordset version = universe.OpenRecordset(stop, "SELECT * from Version");
  if (version.AtEnd() || version["Version"].Get().Text() != CurrentVersion().Stamp()) {
    throw CouldNot(fmt::format("the universe file '{}' is of another version; import it anew",
                               path.string()));
  }
  return universe;
}

}  // namespace orrerix
