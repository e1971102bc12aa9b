// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <cstddef>

#include <fmt/core.h>

#include "demo/content/nations.h"
#include "demo/files/system_file.h"
#include "demo/files/writers.h"
#include "demo/format/bini_writer.h"

namespace orrerix::demo {
namespace {

constexpr std::size_t kPackedEvery = 13;
constexpr std::size_t kFirstPacked = 4;

std::string Upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return text;
}

}  // namespace

std::string LoadoutOf(const std::string& stem, int nation) {
  return fmt::format("{}_{}_01", stem, Nations()[static_cast<std::size_t>(nation)].Prefix);
}

const std::string& ReputationOf(int faction) {
  return Factions()[static_cast<std::size_t>(faction)].Nickname;
}

void WriteSystems(Game& game) {
  for (std::size_t i = 0; i < game.Plan.Systems.size(); ++i) {
    const PlannedSystem& system = game.Plan.Systems[i];
    std::string bytes = SystemFile(game, static_cast<int>(i));
    if (i % kPackedEvery == kFirstPacked) bytes = PackIni(bytes);
    const std::string path =
        fmt::format("DATA/UNIVERSE/SYSTEMS/{}/{}.ini", Upper(system.Nickname), system.Nickname);
    game.Folder.Write(path, bytes);
  }
}

}  // namespace orrerix::demo
