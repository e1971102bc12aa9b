// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <charconv>
#include <cstdio>
#include <optional>

#include <fmt/format.h>

#include "cli/spelling.h"
#include "db/engine/working_copy.h"
#include "db/values/text.h"
#include "platform/native_registry.h"
#include "platform/path_text.h"
#include "shell/game_registry.h"
#include "shell/startup.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// The stamp of a universe, the last thing that an import writes; nothing if it is not there.
std::optional<std::string> StampOf(Database& universe) {
  IgnoreFailures quiet;
  Recordset version = universe.OpenRecordset(quiet, "SELECT * from Version");
  if (version.AtEnd()) return std::nullopt;
  return version["Version"].Get().Text();
}

void RequireFile(const fs::path& path) {
  std::error_code error;
  if (fs::exists(SystemPath(path), error)) return;
  throw CouldNot(fmt::format("there is no universe file '{}'; 'import' makes one", TextOf(path)));
}

std::string RequireStamp(Database& universe, const fs::path& path) {
  if (const auto stamp = StampOf(universe)) return *stamp;
  throw CouldNot(fmt::format("'{}' is no finished universe file; import it anew", TextOf(path)));
}

}  // namespace

CLI::Option* AddText(CLI::App& app, const std::string& name, std::optional<std::string>& text,
                     const std::string& help) {
  // An option bound to the optional itself would take an empty text for none.
  return app.add_option_function<std::string>(
      name, [&text](const std::string& given) { text = given; }, help);
}

CLI::Option* AddRepeated(CLI::App& app, const std::string& name, std::vector<std::string>& texts,
                         const std::string& help) {
  return app
      .add_option_function<std::vector<std::string>>(
          name, [&texts](const std::vector<std::string>& given) { texts = given; }, help)
      ->type_size(1)
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
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
  if (Database) return PathOf(*Database);
  PolicyMessageBoxes messages(*this);
  ErrorLog log(messages, CurrentVersion());
  const auto registry = NativeRegistry();
  return UniverseFileIn(SaveFolderBelow(PathOf(GameRegistry(log, *registry).GetPersonalFolder())));
}

orrerix::Language CommonOptions::CaptionLanguage() const {
  using orrerix::Language;
  return this->Language == "de"   ? Language::German
         : this->Language == "fr" ? Language::French
                                  : Language::English;
}

Database OpenUniverse(const CommonOptions& options) {
  const fs::path path = options.DatabasePath();
  RequireFile(path);
  StopOnFailure stop;
  WorkingCopy copy;
  Database universe = copy.Of(stop, path);
  if (RequireStamp(universe, path) != CurrentVersion().Stamp()) {
    throw CouldNot(
        fmt::format("the universe file '{}' is of another version; import it anew", TextOf(path)));
  }
  return universe;
}

Database OpenFinishedFile(const fs::path& path) {
  RequireFile(path);
  StopOnFailure stop;
  Database universe = DBEngine::OpenDatabase(stop, path);
  RequireStamp(universe, path);
  return universe;
}

CouldNot NoSuch(std::string_view kind, std::string_view name,
                const std::vector<std::string>& known) {
  std::string text = fmt::format("there is no {} '{}'", kind, name);
  const std::string closest = MostAlike(name, known);
  if (!closest.empty()) text += fmt::format("; did you mean '{}'?", closest);
  return CouldNot(text);
}

std::vector<std::string> SplitList(const std::string& text) {
  std::vector<std::string> parts;
  std::string_view rest = text;
  while (true) {
    const std::size_t comma = rest.find(',');
    parts.emplace_back(Trim(rest.substr(0, comma)));
    if (comma == std::string_view::npos) return parts;
    rest.remove_prefix(comma + 1);
  }
}

std::int64_t ParseCount(std::string_view option, const std::string& text, std::int64_t least,
                        std::int64_t most) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [next, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || next != end || number < least || number > most) {
    throw WrongUsage(
        fmt::format("{} needs a whole number from {} to {}, not '{}'", option, least, most, text));
  }
  return number;
}

}  // namespace orrerix
