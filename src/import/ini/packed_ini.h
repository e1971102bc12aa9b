// SPDX-License-Identifier: MIT
// The game's packed ini files ("BINI").
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orrerix {

// Whether a file's bytes begin like a packed one.
bool IsPackedIni(std::string_view bytes);

// The text of a packed file: "[name]" for each section, "key = value, value" for each entry, CR LF
// after each line and an empty line after each section. A real is the shortest decimal that
// reads back to the same 32-bit float, in fixed notation. Nothing if the file is damaged: a wrong
// version, an offset outside the file, an unknown type of value, or texts repeated beyond 64 MiB.
std::optional<std::string> UnpackIni(std::string_view bytes);

}  // namespace orrerix
