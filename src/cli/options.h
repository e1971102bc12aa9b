// SPDX-License-Identifier: MIT
// What every verb of the command line shares.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "db/engine/engine.h"
#include "platform/message_box.h"
#include "shell/error_log.h"
#include "shell/text_id.h"

namespace orrerix {

// Exit codes.
inline constexpr int kDone = 0;
inline constexpr int kCouldNot = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kStrictFound = 3;
inline constexpr int kDifferent = 3;

// After the name of a column: sort by it from the last value to the first.
inline constexpr std::string_view kDescending = ":desc";

// A verb could not do its work; the text is the one line that says why.
struct CouldNot : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The arguments were wrong.
struct WrongUsage : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct CommonOptions {
  std::optional<std::string> Database;  // none: the one in the save folder
  std::string Language = "en";
  std::string OnFailure = "ok";
  bool Json = false;

  // The universe file.
  std::filesystem::path DatabasePath() const;
  orrerix::Language CaptionLanguage() const;
};

// Adds an option that takes a text. An empty text is a text like any other; `text` stays empty only
// where the option is not given.
CLI::Option* AddText(CLI::App& app, const std::string& name, std::optional<std::string>& text,
                     const std::string& help);

// Adds an option that takes one text each time it is given; `texts` holds them all.
CLI::Option* AddRepeated(CLI::App& app, const std::string& name, std::vector<std::string>& texts,
                         const std::string& help);

// Answers every failure question by the chosen policy and prints it to standard error, in the
// dialog's own text. Other messages are printed, too.
class PolicyMessageBoxes : public MessageBoxes {
 public:
  explicit PolicyMessageBoxes(const CommonOptions& options) : options_(options) {}
  MessageAnswer Show(const Message& message) override;

 private:
  const CommonOptions& options_;
};

// Opens the finished universe file for reading, as the indexed copy; says why if it cannot.
Database OpenUniverse(const CommonOptions& options);

// Opens a finished universe file as it is on disk, of whatever version, to read its tables. Throws
// CouldNot.
Database OpenFinishedFile(const std::filesystem::path& path);

// A failure of its work is that of the verb: throws CouldNot.
class StopOnFailure : public FailureSink {
 public:
  void Fail(const Failure& failure) override { throw CouldNot(failure.Description); }
};

// That there is nothing of a name, with what is spelled most like it: `kind` says what is sought.
CouldNot NoSuch(std::string_view kind, std::string_view name,
                const std::vector<std::string>& known);

// The parts of a list with commas, trimmed of blanks.
std::vector<std::string> SplitList(const std::string& text);

// A whole number within bounds. Throws WrongUsage that names the option.
std::int64_t ParseCount(std::string_view option, const std::string& text, std::int64_t least,
                        std::int64_t most);

}  // namespace orrerix
