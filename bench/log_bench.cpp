// SPDX-License-Identifier: MIT
// Scrolling through the log of an import: the tools' page of it, and the window that shows remarks
// as they come in.
#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_games.h"
#include "bench_sinks.h"
#include "forms/error_log_window.h"
#include "forms/workbench/log_page.h"
#include "import/log_entry.h"
#include "shell/version.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr int kLogLines = 100'000;
constexpr QSize kLogWindow(1920, 1050);

std::string LogLine(int number) {
  return "FL-MOD-ERROR Searching target Tradelane <Li01_Trade_Lane_Ring_" + std::to_string(number) +
         "> for <Li01_Trade_Lane_Ring_" + std::to_string(number + 1) + ">";
}

// A main form of which the page needs the log only.
class LogHost : public WorkbenchHost {
 public:
  explicit LogHost(fs::path folder) : folder_(std::move(folder)) {}
  std::string GameText() const override { return folder_.string(); }
  fs::path UniverseFile() const override { return folder_ / "Orrerix.fl"; }
  Universe OpenUniverse(Routine&) override { throw std::logic_error("there is no universe"); }
  void MarkCells(const std::vector<MapCell>&) override {}
  bool ShowOnMap(const std::string&) override { return false; }
  bool ShowWay(const std::vector<ShownLeg>&) override { return false; }
  void HideWay() override {}
  std::string StartPlace() override { return {}; }
  void ImportAgain() override {}
  void WatchGame(bool) override {}
  void OpenGame(const std::string&) override {}

 private:
  fs::path folder_;
};

// Three lines on each time, as a wheel does, and from end to end; until it is painted.
void Scroll(benchmark::State& state, QScrollBar& bar) {
  int row = 0;
  for (auto _ : state) {
    row += state.range(0) == 0 ? 3 : 7919;
    const auto start = std::chrono::steady_clock::now();
    bar.setValue(bar.minimum() + row % std::max(1, bar.maximum() - bar.minimum()));
    QCoreApplication::processEvents();
    state.SetIterationTime(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
}

void ScrollPage(benchmark::State& state, const fs::path& work) {
  LogHost host(work / "log");
  fs::create_directories(work / "log");
  std::vector<std::string> entries;
  for (int i = 0; i < kLogLines; ++i) entries.push_back(LogLine(i));
  SaveLog(host.UniverseFile(), entries);
  LogPage page(host, kEnglishOnly, [](const fs::path&, int) {});
  page.resize(kLogWindow);
  page.show();
  page.Enter();
  QCoreApplication::processEvents();
  Scroll(state, *page.findChild<QTableView*>("LogTable")->verticalScrollBar());
}

void ScrollWindow(benchmark::State& state) {
  SilentMessages messages;
  ErrorLog log(messages, CurrentVersion());
  ErrorLogWindow window(
      log, [] { return false; }, kEnglishOnly);
  window.resize(kLogWindow);
  for (int i = 0; i < kLogLines; ++i) log.AddErrorLine(LogLine(i));
  QCoreApplication::processEvents();
  Scroll(state, *window.findChild<QPlainTextEdit*>("DataLog")->verticalScrollBar());
}

}  // namespace

void RegisterLogBenchmarks(const fs::path& work) {
  const auto add = [](const char* name, const std::function<void(benchmark::State&)>& run) {
    benchmark::RegisterBenchmark(name, run)
        ->ArgName("far")
        ->Arg(0)
        ->Arg(1)
        ->UseManualTime()
        ->Iterations(300)
        ->Unit(benchmark::kMillisecond);
  };
  add("LogScroll/page", [work](benchmark::State& state) { ScrollPage(state, work); });
  add("LogScroll/window", ScrollWindow);
}

}  // namespace orrerix
