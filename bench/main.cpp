// SPDX-License-Identifier: MIT
#ifdef ORRERIX_BENCH_PAINT
#include <QApplication>
#endif
#include <memory>

#include <benchmark/benchmark.h>

#include "bench_games.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  const fs::path work = fs::temp_directory_path() / "orrerix-bench";
  fs::create_directories(work);
  const auto games = orrerix::BenchGames(work, {40, 500});
  orrerix::RegisterImportBenchmarks(games, work);
  orrerix::RegisterRedrawBenchmarks(games, work);
#ifdef ORRERIX_BENCH_PAINT
  qputenv("QT_QPA_PLATFORM", "offscreen");
  std::unique_ptr<QApplication> application;
  orrerix::RegisterPaintBenchmarks(games, work, [&] {
    if (application == nullptr) application = std::make_unique<QApplication>(argc, argv);
  });
#endif
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
