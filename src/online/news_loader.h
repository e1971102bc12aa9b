// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "platform/message_box.h"
#include "platform/network.h"
#include "shell/error_log.h"

namespace orrerix {

// Fetches the news.
class NewsLoader {
 public:
  // `newsAddress` may be empty: then nothing is fetched. Files go into the application folder.
  NewsLoader(ErrorLog& log, Network& network, MessageBoxes& messages, std::string newsAddress,
             std::filesystem::path applicationFolder);

  // Fetches the news text anew; empty if that failed.
  void Command1_Click();

  // The text that came last, UTF-8.
  const std::string& Text1() const { return text1_; }

  // The text behind an address; empty behind a failure.
  std::string GetHTML(const std::string& address);

  // Saves the file behind an address under its own name into the application folder. Without a
  // connection it only says so. A failure shows its description. True if the file was written.
  bool GetRESOURCE(const std::string& address);

  // Whether there is a connection; the second says so if there is none.
  bool DFÜStatus() const { return network_.IsUp(); }
  bool ShowNoConnectionHint();

 private:
  ErrorLog& log_;
  Network& network_;
  MessageBoxes& messages_;
  std::string newsAddress_;
  std::filesystem::path applicationFolder_;
  std::string text1_;
};

// What stands behind the last "\" or "/" of a path or an address; all of it if there is none.
std::string StripPathHelper(const std::string& path);

}  // namespace orrerix
