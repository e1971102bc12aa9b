// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// The running program's file.
std::filesystem::path ExecutablePath();

// The folder of the executable if it can be written to, else the user's data folder for this
// program, which is made if it is not there.
std::filesystem::path ApplicationFolder();

}  // namespace orrerix
