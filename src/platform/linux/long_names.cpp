// SPDX-License-Identifier: MIT
#include "platform/long_names.h"

namespace orrerix {

std::filesystem::path LongNames(const std::filesystem::path& path) {
  return path;
}

}  // namespace orrerix
