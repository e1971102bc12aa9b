// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// Writes a shortcut that starts `target`. On Linux it is a freedesktop entry, and `link` gets the
// ending ".desktop" in the place of ".lnk". False if the file cannot be written.
bool WriteShortcut(const std::filesystem::path& target, const std::filesystem::path& link);

}  // namespace orrerix
