// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// The path with the names of its folders as people gave them. On Windows the registry's paths come
// in their short form ("FREELA~1"). One that leads nowhere stays as it is.
std::filesystem::path LongNames(const std::filesystem::path& path);

}  // namespace orrerix
