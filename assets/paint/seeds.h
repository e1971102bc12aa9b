// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace orrerix {

// Where the dice of each kind of picture start. A changed seed is another universe.
constexpr std::uint64_t GasSeed = 4711;
constexpr std::uint64_t UniverseSeed = 1889;
constexpr std::uint64_t SystemSeed = 20030;  // plus the picture's number
constexpr std::uint64_t TileSeed = 77;
constexpr std::uint64_t EmptySeed = 78;
constexpr std::uint64_t PanelSeed = 512;
constexpr std::uint64_t LogoSeed = 1704;
constexpr std::uint64_t StationSeed = 1610;

}  // namespace orrerix
