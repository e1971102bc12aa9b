// SPDX-License-Identifier: MIT
#include "shell/version.h"

#include <fmt/format.h>

namespace orrerix {

std::string AppVersion::Text() const {
  return fmt::format("{}.{}.{}", Major, Minor, Revision);
}

std::string AppVersion::Stamp() const {
  return fmt::format("{}{}", Major, Minor);
}

AppVersion CurrentVersion() {
  return {ORRERIX_MAJOR, ORRERIX_MINOR, ORRERIX_REVISION};
}

}  // namespace orrerix
