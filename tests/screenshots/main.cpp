// SPDX-License-Identifier: MIT
// orrerix-screenshots: pictures of all windows with a demo game, without a display.
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <regex>
#include <string>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "contrast.h"
#include "demo/demo_game.h"
#include "forms/program_style.h"
#include "forms/qt_services.h"
#include "silent_services.h"
#include "support/accessible_tree.h"
#include "tour.h"

namespace {

using namespace orrerix;

struct Words {
  std::string Folder;
  std::string Size = "1280x800";
  double Scale = 1;
  std::string Format = "jpg";
  std::string Game;
  bool Contrast = false;
  bool Tree = false;
};

// A screen of a size in device pixels, for a platform without any.
void MakeScreen(const Words& words, const QString& folder) {
  int width = 0;
  int height = 0;
  std::sscanf(words.Size.c_str(), "%dx%d", &width, &height);
  QFile file(folder + "/screen.json");
  if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no room for scratch files");
  file.write(fmt::format(R"({{"screens":[{{"name":"screen","x":0,"y":0,"width":{},"height":{},)"
                         R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}}]}})",
                         width, height)
                 .c_str());
  file.close();
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + file.fileName()).toUtf8());
  qputenv("QT_SCALE_FACTOR", QByteArray::number(words.Scale));
}

bool TakeAll(const Words& words, const std::filesystem::path& scratch) {
  StartPaths paths;
  paths.ApplicationFolder = scratch;
  paths.Executable = scratch / "orrerix";
  paths.SaveFolder = scratch;
  paths.NewsAddress = OnlyNews::Address;
  paths.Game = words.Game.empty() ? "game" : words.Game;
  if (words.Game.empty()) WriteDemoGame(*paths.Game);
  LanguageChoice choice;
  DesktopMessageBoxes messages(choice);
  ErrorLog log(messages, CurrentVersion());
  const NoRegistry noRegistry;
  const GameRegistry registry(log, noRegistry);
  NoSound sound;
  NoLinks links;
  NoPrinters printers;
  OnlyNews network;
  PictureStore pictures;
  const FormParts parts{paths, CurrentVersion(), log,     registry, messages, sound,
                        links, printers,         network, pictures, choice};
  ProgramRun run(parts);
  run.OnEnd = [] {};
  Album album(QString::fromStdString(words.Folder), QString::fromStdString(words.Format));
  ContrastReport contrast;
  album.OnTaken = [&](const QString& name, QWidget& window) {
    if (words.Contrast) contrast.Measure(name, window);
    if (words.Tree) fmt::print("{}\n{}\n", name.toStdString(), TextOf(AccessibleTree(window)));
  };
  const bool complete = Tour(run, log, pictures, album).Go();
  return contrast.Print() && complete;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Pictures of all windows");
  Words words;
  app.add_option("DIR", words.Folder, "Where the pictures go")->required();
  app.add_option("--size", words.Size, "The screen, WIDTHxHEIGHT in its own pixels")
      ->check([](const std::string& size) {
        static const std::regex form("[1-9][0-9]{2,4}x[1-9][0-9]{2,4}");
        return std::regex_match(size, form) ? "" : "a size is like 1280x800";
      });
  app.add_option("--scale", words.Scale, "Its scale factor");
  app.add_option("--format", words.Format, "Kind of the files")
      ->check(CLI::IsMember({"jpg", "png"}));
  app.add_option("--game", words.Game, "A game folder; default: a demo game");
  app.add_flag("--contrast", words.Contrast,
               "Print the contrast of all texts; exit code 1 if one is below 4.5 to 1");
  app.add_flag("--tree", words.Tree, "Print what a screen reader is told of each window");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 2;
  }
  QTemporaryDir scratch;
  words.Folder = std::filesystem::absolute(words.Folder).string();
  if (!words.Game.empty()) words.Game = std::filesystem::absolute(words.Game).string();
  QDir::setCurrent(scratch.path());  // the demo game's place is not for the documents
  MakeScreen(words, scratch.path());
  int qtArgc = 1;
  QApplication application(qtArgc, argv);
  QApplication::setApplicationName("orrerix");
  QApplication::setApplicationDisplayName("");
  QApplication::setQuitOnLastWindowClosed(false);
  SetProgramStyle();
  return TakeAll(words, scratch.path().toStdString()) ? 0 : 1;
}
