// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "import/import_host.h"

namespace orrerix {

// Runs an import without a window. On a terminal it shows a bar with the percent text and the file
// being read; elsewhere, or with --quiet, nothing.
class CliHost : public ImportHost {
 public:
  // The import ends, by ImportEnded, once `isEnded`, if there is one, says so.
  CliHost(MessageBoxes& messages, bool quiet, std::function<bool()> isEnded = {});
  ~CliHost() override;

  void ShowText(std::string_view text) override;
  void AppendText(std::string_view text) override;
  void ProgressIt(std::int32_t maximum, std::int32_t value,
                  const ImportProgress& progress) override;
  void Yield() override;
  void Pause(int) override {}
  MessageAnswer Show(const Message& message) override { return messages_.Show(message); }
  std::uint32_t TickCount() override;
  bool IsMinimised() const override { return false; }
  bool IsDebugging() const override { return false; }

 private:
  MessageBoxes& messages_;
  bool shown_;
  std::function<bool()> isEnded_;
  std::string doing_;
};

}  // namespace orrerix
