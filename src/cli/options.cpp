// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <cstdio>
#include <optional>

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

// The stamp of a universe, the last thing that an import writes; nothing if it is not there.
std::optional<std::string> StampOf(Database& universe) {
  IgnoreFailures quiet;
  Recordset version = universe.OpenRecordset(quiet, "SELECT * from Version");
  if (version.AtEnd()) return std::nullopt;
  return version["Version"].Get().Text();
}

}  // namespace

void AddText(CLI::App& app, const std::string& name, std::optional<std::string>& text,
             const std::string& help) {
  // An option bound to the optional itself would take an empty text for none.
  app.add_option_function<std::string>(
      name, [&text](const std::string& given) { text = given; }, help);
}

MessageAnswer PolicyMessageBoxes::Show(const Message& message) {
  fmt::print(stderr, "{}{}{}\n", message.Title, message.Title.empty() ? "" : "\n", message.Text);
  if (message.Buttons == MessageButtons::AbortRetryIgnore) {
    return options_.OnFailure == "ok" ? MessageAnswer::Ignore : MessageAnswer::Abort;
  }
  if (message.Buttons == MessageButtons::RetryLeave) return MessageAnswer::Leave;
  return options_.OnFailure == "ok" ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

fs::path CommonOptions::DatabasePath() const {
  if (Database) return *Database;
  PolicyMessageBoxes messages(*this);
  ErrorLog log(messages, CurrentVersion());
  const auto registry = NativeRegistry();
  return UniverseFileIn(SaveFolderBelow(GameRegistry(log, *registry).GetPersonalFolder()));
}

orrerix::Language CommonOptions::CaptionLanguage() const {
  using orrerix::Language;
  return this->Language == "de"   ? Language::German
         : this->Language == "fr" ? Language::French
                                  : Language::English;
}

Database OpenUniverse(const CommonOptions& options) {
  const fs::path path = options.DatabasePath();
  std::error_code error;
  if (!fs::exists(path, error)) {
    throw CouldNot(
        fmt::format("there is no universe file '{}'; 'import' makes one", path.string()));
  }
  Stop stop;
  WorkingCopy copy;
  Database universe = copy.Of(stop, path);
  const auto stamp = StampOf(universe);
  if (!stamp) {
    throw CouldNot(fmt::format("'{}' is no finished universe file; import it anew", path.string()));
  }
  if (*stamp != CurrentVersion().Stamp()) {
    throw CouldNot(
        fmt::format("the universe file '{}' is of another version; import it anew", path.string()));
  }
  return universe;
}

}  // namespace orrerix
