// SPDX-License-Identifier: MIT
#include "cli/cli_host.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include <fmt/format.h>

#include "import/progress.h"
#include "platform/terminal.h"
#include "platform/tick_count.h"

namespace orrerix {
namespace {

constexpr int kBarWidth = 24;
constexpr std::size_t kTextWidth = 60;

// The last line of a text that is not empty.
std::string LastLine(std::string_view text) {
  const std::size_t end = text.find_last_not_of("\r\n");
  if (end == std::string_view::npos) return {};
  text = text.substr(0, end + 1);
  return std::string(text.substr(text.find_last_of("\r\n") + 1));
}

}  // namespace

CliHost::CliHost(MessageBoxes& messages, bool quiet, std::function<bool()> isEnded)
    : messages_(messages),
      shown_(!quiet && IsErrorShownOnTerminal()),
      isEnded_(std::move(isEnded)) {}

CliHost::~CliHost() {
  if (shown_) fmt::print(stderr, "\r\033[K");
}

void CliHost::Yield() {
  if (isEnded_ && isEnded_()) throw ImportEnded();
}

void CliHost::ShowText(std::string_view text) {
  // A file being read comes with the block that is looked at after it.
  doing_ = text.starts_with("reading file") ? std::string(text.substr(0, text.find('\r')))
                                            : LastLine(text);
}

void CliHost::AppendText(std::string_view text) {
  doing_ = LastLine(text);
}

void CliHost::ProgressIt(std::int32_t maximum, std::int32_t value, const ImportProgress& progress) {
  if (!shown_) return;
  const double share = progress.ImportSteps == 0
                           ? 0
                           : static_cast<double>(progress.ImportDone) / progress.ImportSteps;
  const int filled = std::clamp(static_cast<int>(share * kBarWidth), 0, kBarWidth);
  fmt::print(stderr, "\r[{:=<{}}{:<{}}] {} {:.{}}\033[K", "", filled, "", kBarWidth - filled,
             ProgressText(maximum, value, progress), doing_, kTextWidth);
}

std::uint32_t CliHost::TickCount() {
  return GetTickCount();
}

}  // namespace orrerix
