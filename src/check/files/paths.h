// SPDX-License-Identifier: MIT
// Paths as the game's files name them.
#pragma once

#include <string>
#include <string_view>

namespace orrerix::check {

// A path with "/" only and without ".", ".." and empty components. One that leads out of its
// folder keeps the ".." at its start. Case stays.
std::string ResolvePath(std::string_view path);

// `below` and a path that starts there, resolved.
std::string JoinPath(std::string_view below, std::string_view path);

// A resolved path in the form in which paths compare: A-Z equals a-z.
std::string PathKey(std::string_view resolved);

}  // namespace orrerix::check
