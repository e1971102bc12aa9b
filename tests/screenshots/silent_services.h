// SPDX-License-Identifier: MIT
// What a user would hear, open or print on a tour of the windows: nothing.
#pragma once

#include "platform/links.h"
#include "platform/printer.h"
#include "platform/registry.h"
#include "platform/sound.h"

namespace orrerix {

class NoSound : public SoundPlayer {
 public:
  void Play(const std::filesystem::path&) override {}
  void Beep() override {}
};

class NoLinks : public LinkOpener {
 public:
  void Open(const std::string&) override {}
};

class NoPrinters : public Printers {
 public:
  std::optional<PrintTarget> DefaultPrinter() override { return std::nullopt; }
};

class NoRegistry : public Registry {
 public:
  std::optional<RegistryValue> Query(RegistryHive, std::string_view,
                                     std::string_view) const override {
    return std::nullopt;
  }
  std::optional<std::string> RealPath(std::string_view) const override { return std::nullopt; }
};

}  // namespace orrerix
