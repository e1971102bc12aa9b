// SPDX-License-Identifier: MIT
// Questions, links, printers and sounds, done by the desktop.
#pragma once

#include <map>
#include <memory>

#include "platform/links.h"
#include "platform/message_box.h"
#include "platform/printer.h"
#include "platform/sound.h"
#include "shell/text_id.h"

class QSoundEffect;

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
  std::optional<PrintTarget> DefaultPrinter() override;
};

class DesktopSound : public SoundPlayer {
 public:
  DesktopSound();
  ~DesktopSound() override;

  void Play(const std::filesystem::path& file) override;
  void WaitForEnd() override;
  void Beep() override;

 private:
  QSoundEffect& EffectOf(const std::filesystem::path& file);

  std::map<std::filesystem::path, std::unique_ptr<QSoundEffect>> effects_;  // read once
  QSoundEffect* last_ = nullptr;
};

}  // namespace orrerix
