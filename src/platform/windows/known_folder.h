// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include <shtypes.h>

namespace orrerix {

// A folder that the system knows under an identity, for this user; the temporary folder if it does
// not know it.
std::filesystem::path KnownFolder(const KNOWNFOLDERID& identity);

}  // namespace orrerix
