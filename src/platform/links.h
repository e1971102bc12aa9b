// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orrerix {

// Hands addresses to the user's browser.
class LinkOpener {
 public:
  virtual ~LinkOpener() = default;
  virtual void Open(const std::string& address) = 0;
};

}  // namespace orrerix
