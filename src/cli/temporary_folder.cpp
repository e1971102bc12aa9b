// SPDX-License-Identifier: MIT
#include "cli/temporary_folder.h"

#include <random>

#include <fmt/format.h>

#include "cli/options.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  constexpr int attempts = 100;
  std::error_code error;
  const fs::path base = fs::temp_directory_path(error);
  std::random_device random;
  for (int i = 0; !error && i < attempts; ++i) {
    path_ = base / PathOf(fmt::format("orrerix-{:08x}", random()));
    if (!fs::create_directory(path_, error) || error) continue;
    fs::permissions(path_, fs::perms::owner_all, error);
    return;
  }
  throw CouldNot(fmt::format("cannot make a temporary folder in '{}'", TextOf(base)));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace orrerix
