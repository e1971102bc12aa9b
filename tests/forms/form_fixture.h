// SPDX-License-Identifier: MIT
// What forms are built from, with stand-ins for all that a user would answer, hear or see.
#pragma once

#include <QApplication>
#include <QEventLoop>
#include <QWidget>
#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/form_parts.h"
#include "map/control_id.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {

class FakeSound : public SoundPlayer {
 public:
  std::vector<std::filesystem::path> Played;
  int Beeps = 0;
  void Play(const std::filesystem::path& file) override { Played.push_back(file); }
  int Awaited = 0;
  void WaitForEnd() override { ++Awaited; }
  void Beep() override { ++Beeps; }
};

class FakeLinks : public LinkOpener {
 public:
  std::vector<std::string> Opened;
  int Manuals = 0;
  void Open(const std::string& address) override { Opened.push_back(address); }
  void OpenManual() override { ++Manuals; }
};

// A network with one page; without it no server answers.
class FakeNetwork : public Network {
 public:
  std::optional<std::string> Page;
  int Asked = 0;
  std::string Get(const std::string&) override {
    ++Asked;
    if (!Page) throw NetworkError("The server does not answer");
    return *Page;
  }
  bool IsUp() const override { return true; }
};

// A machine whose only printer writes PDF files; without a file it has none.
class FakePrinters : public Printers {
 public:
  std::filesystem::path File;
  std::function<void()> OnAsked;
  PrinterChoice Choice;  // the user's answer to the print dialog
  PrinterChoice Choose() override { return Choice; }
  std::optional<PrintTarget> DefaultPrinter() override {
    if (OnAsked) OnAsked();
    if (File.empty()) return std::nullopt;
    return PrintTarget{{}, File};
  }
};

// A machine on which no installer has ever run.
class EmptyRegistry : public Registry {
 public:
  std::optional<RegistryValue> Query(RegistryHive, std::string_view,
                                     std::string_view) const override {
    return std::nullopt;
  }
  std::optional<std::string> RealPath(std::string_view) const override { return std::nullopt; }
};

// The child of a name; a test that asks for one that is not there is told what is.
template <typename Child = QWidget>
Child& Find(const QWidget& root, const char* name) {
  if (auto* child = root.findChild<Child*>(name)) return *child;
  std::string there;
  for (const QWidget* child : root.findChildren<QWidget*>()) {
    if (!child->objectName().isEmpty()) there += " " + child->objectName().toStdString();
  }
  throw std::runtime_error(std::string("no child '") + name + "'; there are:" + there);
}

template <typename Child = QWidget>
Child& Find(const QWidget& root, ControlId id) {
  return Find<Child>(root, PrintedName(id).data());
}
template <typename Child = QWidget>
Child& Find(const QWidget& root, ControlId id, int index) {
  return Find<Child>(root, ObjectName(id, index).c_str());
}

// Lets events through until something is so. False if it does not come about.
inline bool WaitUntil(const std::function<bool()>& isSo) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!isSo()) {
    if (std::chrono::steady_clock::now() > end) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return true;
}

// Lets events through until none is pending.
inline void PassEvents() {
  QEventLoop loop;
  while (loop.processEvents()) {
  }
}

class FormFixture : public ::testing::Test {
 protected:
  FormFixture() {
    paths.ApplicationFolder = folder.Path();
    paths.Executable = folder.Path() / "orrerix";
    paths.Game = (folder.Path() / "game").string();
    paths.SaveFolder = folder.Path();
  }

  std::filesystem::path UniverseFile() const { return folder.Path() / "Orrerix.fl"; }

  TempFolder folder;
  StartPaths paths;
  FakeMessageBoxes messages;
  ErrorLog log{messages, {1, 0, 0}};
  EmptyRegistry noRegistry;
  GameRegistry registry{log, noRegistry};
  FakeSound sound;
  FakeLinks links;
  FakePrinters printers;
  FakeNetwork network;
  PictureStore pictures;
  LanguageChoice choice;
  FormParts parts{paths, {1, 0, 0}, log,     registry, messages, sound,
                  links, printers,  network, pictures, choice};
};

}  // namespace orrerix
