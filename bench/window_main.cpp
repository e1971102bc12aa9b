// SPDX-License-Identifier: MIT
// The windows, on a screen that nobody sees.
#include <QApplication>

#include <benchmark/benchmark.h>

#include "bench_games.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const fs::path work = fs::temp_directory_path() / "orrerix-window-bench";
  fs::create_directories(work);
  const auto games = orrerix::BenchGames(work, {300});
  orrerix::RegisterMapPlayBenchmarks(games, work);
  orrerix::RegisterPlayerBenchmarks(games, work);
  orrerix::RegisterLogBenchmarks(work);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
