// SPDX-License-Identifier: MIT
// What a user would hear, open or print on a tour of the windows: nothing.
#pragma once

#include <string>

#include "platform/links.h"
#include "platform/network.h"
#include "platform/printer.h"
#include "platform/registry.h"
#include "platform/sound.h"

namespace orrerix {

class NoSound : public SoundPlayer {
 public:
  void Play(const std::filesystem::path&) override {}
  void WaitForEnd() override {}
  void Beep() override {}
};

class NoLinks : public LinkOpener {
 public:
  void Open(const std::string&) override {}
  void OpenManual() override {}
};

class NoPrinters : public Printers {
 public:
  std::optional<PrintTarget> DefaultPrinter() override { return std::nullopt; }
};

// A web of one page: some news of a program that is up to date.
class OnlyNews : public Network {
 public:
  static constexpr const char* Address = "http://orrerix.invalid/news.txt";

  std::string Get(const std::string&) override {
    return "1.0\r\nNothing new\r\nhttp://orrerix.invalid/\r\n"
           "Map of the month: the Ochre Gap\r\nOpens the page\r\nhttp://orrerix.invalid/map\r\n"
           "How mods are imported\r\nOpens the page\r\nhttp://orrerix.invalid/mods\r\n"
           "Questions and answers\r\nOpens the page\r\nhttp://orrerix.invalid/help\r\n";
  }
  bool IsUp() const override { return true; }
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
