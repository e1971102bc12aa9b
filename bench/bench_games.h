// SPDX-License-Identifier: MIT
// The games that are measured, and what every benchmark does with them.
#pragma once

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "db/database.h"
#include "import/import_driver.h"

namespace orrerix {

struct BenchGame {
  std::string Name;
  std::filesystem::path Folder;
};

// The folder named by ORRERIX_BENCH_GAME, if there is one, as "real", and demo games of so many
// systems, written below `work`.
std::vector<BenchGame> BenchGames(const std::filesystem::path& work,
                                  std::initializer_list<int> sizes);

// Imports a game into a folder of its own below `work` and gives the finished file.
std::filesystem::path ImportInto(const BenchGame& game, const std::filesystem::path& work);

void RegisterImportBenchmarks(const std::vector<BenchGame>& games,
                              const std::filesystem::path& work);
void RegisterLogBenchmarks(const std::filesystem::path& work);
void RegisterMapPlayBenchmarks(const std::vector<BenchGame>& games,
                               const std::filesystem::path& work);
void RegisterPlayerBenchmarks(const std::vector<BenchGame>& games,
                              const std::filesystem::path& work);
void RegisterRedrawBenchmarks(const std::vector<BenchGame>& games,
                              const std::filesystem::path& work);
// `makeApplication` makes an application of Qt's with the first of them: what it leaves in the
// processor's registers would slow down the other benchmarks.
void RegisterPaintBenchmarks(const std::vector<BenchGame>& games, const std::filesystem::path& work,
                             const std::function<void()>& makeApplication);

}  // namespace orrerix
