// SPDX-License-Identifier: MIT
// The printers of the machine.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace orrerix {

// Where a page goes.
struct PrintTarget {
  std::string Printer;         // the system's name of a printer
  std::filesystem::path File;  // not empty: a PDF file in the printer's place
};

// Knows the printers of the machine.
class Printers {
 public:
  virtual ~Printers() = default;

  // The system's default printer; nothing if there is none.
  virtual std::optional<PrintTarget> DefaultPrinter() = 0;
};

}  // namespace orrerix
