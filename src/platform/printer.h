// SPDX-License-Identifier: MIT
// The printers of the machine.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace orrerix {

// A printer with all that the user has set up for it: what it is only the machine's layer knows.
class PrintDevice {
 public:
  virtual ~PrintDevice() = default;
};

// Where a page goes.
struct PrintTarget {
  std::string Printer;                            // the system's name of a printer
  std::filesystem::path File;                     // not empty: a PDF file in the printer's place
  std::shared_ptr<PrintDevice> Device = nullptr;  // in the place of both
};

enum class PrinterAnswer {
  Default,  // print on the default printer
  Chosen,   // print on the target
  GivenUp,  // print nothing
  None      // there is no printer
};

struct PrinterChoice {
  PrinterAnswer Answer = PrinterAnswer::Default;
  PrintTarget Target = {};  // if one was chosen
};

// Knows the printers of the machine.
class Printers {
 public:
  virtual ~Printers() = default;

  // Asks the user for a printer, where the machine has a way to do so.
  virtual PrinterChoice Choose() { return {}; }

  // The system's default printer; nothing if there is none.
  virtual std::optional<PrintTarget> DefaultPrinter() = 0;
};

}  // namespace orrerix
