// SPDX-License-Identifier: MIT
#include "shell/error_log.h"

#include <utility>

#include <fmt/format.h>

#include "shell/language_texts.h"

namespace orrerix {

ErrorLog::ErrorLog(MessageBoxes& messages, AppVersion version, const LanguageChoice& choice)
    : messages_(messages), version_(version), choice_(choice) {}

void ErrorLog::Load() {
  if (loaded_) return;
  loaded_ = true;
  ++loads_;
  dataLog_ = "FreeLancer-Files Error Logfile\r\n=======================\r\n";
  programLog_ =
      fmt::format("FL Orrerix v{}.{} R{}  ErrorLog\r\n==============================\r\n\r\n",
                  version_.Major, version_.Minor, version_.Revision);
}

void ErrorLog::OpenWindow() {
  Load();
  if (logWindowOpen_) return;
  logWindowOpen_ = true;
  if (view_ != nullptr) view_->ShowWindow();
}

bool ErrorLog::AddErrorLine(std::string_view line) {
  OpenWindow();
  dataLines_.emplace_back(line);
  dataLog_ += "\r\n";
  dataLog_ += line;
  if (view_ != nullptr) view_->TextsChanged();
  return false;
}

std::string ErrorLog::EntryText(std::string_view source, const Failure& failure,
                                std::string_view info) {
  constexpr int noLineMarker = 0;
  std::string entry = fmt::format("{} in {} Line {}\r\nDescription: {}({})\r\nSource: {}\r\n",
                                  failure.Number, source, noLineMarker, failure.Description,
                                  StandardMessage(failure.Number), failure.Source);
  if (!info.empty()) entry += fmt::format("Info: {}\r\n", info);
  return entry;
}

ErrorAnswer ErrorLog::AddDataError(std::string_view source, const Failure& failure,
                                   std::string_view info) {
  OpenWindow();
  const std::string entry = EntryText(source, failure, info);
  failures_.push_back({std::string(source), std::string(info), failure});
  programLog_ += "\r\n--> " + entry;
  hasProgramError_ = true;
  if (view_ != nullptr) view_->TextsChanged();
  constexpr int questionLines = 3;  // with the empty one above it
  const Message question{
      entry + "\r\n" + std::string(TextIn(choice_.Current, TextId::FailureQuestion)),
      fmt::format("FL Orrerix v{}.{} ERROR:", version_.Major, version_.Minor),
      MessageButtons::OkCancel, MessageIcon::Critical, questionLines};
  return messages_.Show(question) == MessageAnswer::Cancel ? ErrorAnswer::Leave : ErrorAnswer::GoOn;
}

bool ErrorLog::QueryUnload(bool importing) {
  if (importing) {
    logWindowOpen_ = false;
    return true;
  }
  loaded_ = false;
  return false;
}

}  // namespace orrerix
