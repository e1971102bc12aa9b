// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "platform/message_box.h"
#include "platform/network.h"
#include "shell/error_log.h"
#include "shell/text_id.h"

namespace orrerix {

// Fetches the news.
class NewsLoader {
 public:
  // `newsAddress` may be empty: then nothing is fetched. Files go into the application folder,
  // messages are in `language`.
  NewsLoader(ErrorLog& log, Network& network, MessageBoxes& messages, std::string newsAddress,
             std::filesystem::path applicationFolder, Language language);

  // The news text, UTF-8; empty if there is none or it cannot be fetched.
  std::string Fetch();

  // The text at an address; empty after a failure.
  std::string FetchText(const std::string& address);

  // Saves the file at an address under its own name in the application folder. Without a connection
  // it only says so. A failure shows its description. True if the file was written. Nothing in the
  // program calls it; it is kept for callers that want pictures beside the news.
  bool SaveFile(const std::string& address);

  // Whether there is a connection; the second says so if there is none.
  bool IsOnline() const { return network_.IsUp(); }
  bool ShowNoConnectionHint();

 private:
  ErrorLog& log_;
  Network& network_;
  MessageBoxes& messages_;
  std::string newsAddress_;
  std::filesystem::path applicationFolder_;
  Language language_;
};

// What stands after the last "\" or "/" of a path or an address; all of it if there is none.
std::string StripPathHelper(const std::string& path);

}  // namespace orrerix
