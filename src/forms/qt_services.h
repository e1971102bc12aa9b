// SPDX-License-Identifier: MIT
// Questions, links and printers, done by the desktop.
#pragma once

#include "platform/links.h"
#include "platform/message_box.h"
#include "platform/printer.h"
#include "shell/text_id.h"

namespace orrerix {

// Modal to the whole program; timers and other window messages go on meanwhile.
class DesktopMessageBoxes : public MessageBoxes {
 public:
  // `choice`, the language of the buttons, must outlive this.
  explicit DesktopMessageBoxes(const LanguageChoice& choice = kEnglishOnly) : choice_(choice) {}

  MessageAnswer Show(const Message& message) override;

 private:
  const LanguageChoice& choice_;
};

class DesktopLinks : public LinkOpener {
 public:
  void Open(const std::string& address) override;
  void OpenManual() override;
};

class DesktopPrinters : public Printers {
 public:
  // `choice`, the language of the dialog's title, must outlive this.
  explicit DesktopPrinters(const LanguageChoice& choice = kEnglishOnly) : choice_(choice) {}

  // Shows the desktop's print dialog.
  PrinterChoice Choose() override;
  std::optional<PrintTarget> DefaultPrinter() override;

 private:
  const LanguageChoice& choice_;
};

}  // namespace orrerix
