// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// Makes a finished universe file out of a demo game of two systems. It has the tables that the map
// reads, and at most so many rows in each.
std::filesystem::path MakeDemoUniverse(int rows);

}  // namespace orrerix
