// SPDX-License-Identifier: MIT
#include "forms/workbench/background_import.h"

#include <chrono>
#include <new>

#include "derived/stages.h"
#include "forms/workbench/silent_boxes.h"
#include "import/log_entry.h"
#include "import/replacing_import.h"
#include "platform/tick_count.h"
#include "shell/game_record.h"

namespace orrerix {
namespace {

// Shows nothing, and ends the import once it is cancelled.
class SilentHost : public ImportHost {
 public:
  SilentHost(MessageBoxes& messages, const BackgroundTask::IsCancelled& isCancelled)
      : messages_(messages), isCancelled_(isCancelled) {}

  void ShowText(std::string_view) override {}
  void AppendText(std::string_view) override {}
  void ProgressIt(std::int32_t, std::int32_t, const ImportProgress&) override { Yield(); }
  void Yield() override {
    if (isCancelled_()) throw ImportEnded{};
  }
  void Pause(int) override {}
  MessageAnswer Show(const Message& message) override { return messages_.Show(message); }
  std::uint32_t TickCount() override { return GetTickCount(); }
  bool IsMinimised() const override { return true; }
  bool IsDebugging() const override { return false; }

 private:
  MessageBoxes& messages_;
  const BackgroundTask::IsCancelled& isCancelled_;
};

}  // namespace

ImportOutcome BackgroundImport::Run(const Order& order,
                                    const BackgroundTask::IsCancelled& isCancelled) {
  const auto start = std::chrono::steady_clock::now();
  ImportOutcome outcome;
  SilentBoxes messages;
  ErrorLog log(messages, order.Version);
  SilentHost host(messages, isCancelled);
  const GameFolder game(order.Game);
  try {
    // Recorded before the import, so that files written meanwhile count as changed afterwards.
    const GameRecord record{order.Game, StampOfGame(order.Game)};
    outcome.Finished =
        ReplaceUniverse(log, host, {game, order.UniverseFile, order.Format, order.Version},
                        DerivedStages())
            .Finished;
    outcome.LogEntries = log.DataLines();
    outcome.Failures = log.Failures().size();
    if (outcome.Finished) {
      WriteGameRecord(order.UniverseFile, record);
      SaveLog(order.UniverseFile, outcome.LogEntries);
    }
  } catch (const std::exception& error) {
    outcome.Error = error.what();
  }
  outcome.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  return outcome;
}

void BackgroundImport::Start(const Order& order, std::function<void(ImportOutcome)> done) {
  task_.Start(
      [order](const BackgroundTask::IsCancelled& isCancelled) { return Run(order, isCancelled); },
      std::move(done));
}

}  // namespace orrerix
