// SPDX-License-Identifier: MIT
#include "bench_games.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "bench_sinks.h"
#include "demo/demo_game.h"
#include "derived/stages.h"
#include "platform/tick_count.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

class SilentHost : public ImportHost {
 public:
  void ShowText(std::string_view) override {}
  void AppendText(std::string_view) override {}
  void ProgressIt(std::int32_t, std::int32_t, const ImportProgress&) override {}
  void Yield() override {}
  void Pause(int) override {}
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
  std::uint32_t TickCount() override { return GetTickCount(); }
  bool IsMinimised() const override { return false; }
  bool IsDebugging() const override { return false; }
};

}  // namespace

std::vector<BenchGame> BenchGames(const fs::path& work, std::initializer_list<int> sizes) {
  std::vector<BenchGame> games;
  if (const char* real = std::getenv("ORRERIX_BENCH_GAME"); real != nullptr && *real != '\0') {
    games.push_back({"real", real});
  }
  for (const int systems : sizes) {
    const fs::path folder = work / ("demo" + std::to_string(systems));
    WriteDemoGame(folder, systems);
    games.push_back({"demo" + std::to_string(systems), folder});
  }
  return games;
}

fs::path ImportInto(const BenchGame& game, const fs::path& work) {
  const fs::path folder = work / ("save-" + game.Name);
  fs::remove_all(folder);
  fs::create_directories(folder);
  SilentMessages messages;
  ErrorLog log(messages, CurrentVersion());
  SilentHost host;
  Database database;
  const GameFolder source(game.Folder.string());
  if (!ImportGame(log, host, database,
                  {source, folder, JetVersionOption::Version30, CurrentVersion()}, DerivedStages())
           .Finished) {
    throw std::runtime_error("the import of " + game.Name + " was given up");
  }
  return folder / "Orrerix.fl";
}

}  // namespace orrerix
