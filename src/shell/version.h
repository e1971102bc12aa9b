// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orrerix {

struct AppVersion {
  int Major = 0;
  int Minor = 0;
  int Revision = 0;

  // "1.0.0"
  std::string Text() const;

  // Major and minor with nothing between them, as a finished universe file carries them. Version
  // 1.10 and version 11.0 share a stamp.
  std::string Stamp() const;
};

// The version of this program.
AppVersion CurrentVersion();

}  // namespace orrerix
