// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace orrerix {

// The number under which the game's save files know a nickname (UTF-8), whatever its case: a
// checksum over its lower-case Windows-1252 bytes. "Li03_to_Li01" has 2298368769.
std::uint32_t NicknameNumber(std::string_view nickname);

}  // namespace orrerix
