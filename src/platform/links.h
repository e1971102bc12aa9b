// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orrerix {

// Shows pages in the user's browser.
class LinkOpener {
 public:
  virtual ~LinkOpener() = default;
  virtual void Open(const std::string& address) = 0;

  // The program's own manual, in whatever shows it.
  virtual void OpenManual() = 0;
};

}  // namespace orrerix
