// SPDX-License-Identifier: MIT
// Questions, links and sounds, done by the desktop.
#pragma once

#include <memory>

#include "platform/links.h"
#include "platform/message_box.h"
#include "platform/sound.h"

class QSoundEffect;

namespace orrerix {

// Modal to the whole program; timers and other window messages go on meanwhile.
class DesktopMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override;
};

class DesktopLinks : public LinkOpener {
 public:
  void Open(const std::string& address) override;
};

class DesktopSound : public SoundPlayer {
 public:
  DesktopSound();
  ~DesktopSound() override;

  void Play(const std::filesystem::path& file) override;
  void Beep() override;

 private:
  std::unique_ptr<QSoundEffect> effect_;  // made with the first sound
};

}  // namespace orrerix
