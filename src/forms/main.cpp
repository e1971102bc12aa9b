// SPDX-License-Identifier: MIT
// orrerix: the window.
#include <QApplication>
#include <algorithm>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "forms/desktop_network.h"
#include "forms/desktop_sound.h"
#include "forms/interface_scale.h"
#include "forms/program_run.h"
#include "forms/program_style.h"
#include "forms/qt_services.h"
#include "picture/application_icon.h"
#include "platform/application_folder.h"
#include "platform/console.h"
#include "platform/freed_memory.h"
#include "platform/game_path.h"
#include "platform/native_registry.h"
#include "platform/path_text.h"
#include "shell/version.h"

namespace {

using namespace orrerix;

struct Words {
  std::string Game;
  std::string SaveFolder;
  std::string AppFolder;
  // NOLINTNEXTLINE(readability-redundant-string-init): builds may name an address.
  std::string NewsUrl = ORRERIX_NEWS_URL;
  bool FindGame = false;
  std::vector<std::string> Others;
};

void AddWords(CLI::App& app, Words& words) {
  app.set_version_flag("--version", "orrerix " + CurrentVersion().Text());
  app.add_option("--game", words.Game, "The game's folder");
  app.add_option("--save-folder", words.SaveFolder, "Folder of the universe file");
  app.add_option("--app-folder", words.AppFolder, "Folder of settings and language texts");
  app.add_option("--news-url", words.NewsUrl, "Address of the news file");
  app.add_flag("--find-game", words.FindGame,
               "Print the game folder that a start finds by itself; exit code 1 if there is none");
  app.add_option("words", words.Others, "\"debug\" shows every block that an import reads");
}

// Creates a folder that an option names. Folders that the program finds by itself exist already.
std::filesystem::path MadeFolder(const std::string& name) {
  std::error_code ignored;
  std::filesystem::path folder = std::filesystem::absolute(PathOf(name), ignored);
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

StartPaths PathsOf(const Words& words) {
  StartPaths paths;
  paths.ApplicationFolder =
      words.AppFolder.empty() ? ApplicationFolder() : MadeFolder(words.AppFolder);
  paths.Executable = ExecutablePath();
  if (!words.Game.empty()) paths.Game = words.Game;
  paths.NewsAddress = words.NewsUrl;
  if (!words.SaveFolder.empty()) paths.SaveFolder = MadeFolder(words.SaveFolder);
  paths.Debugging =
      std::find(words.Others.begin(), words.Others.end(), "debug") != words.Others.end();
  return paths;
}

// Answers every question with OK and shows none.
class NoMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
};

int PrintGame() {
  NoMessageBoxes messages;
  ErrorLog log(messages, CurrentVersion());
  const auto native = NativeRegistry();
  const GameFolder game(GameRegistry(log, *native).GetFLPath());
  if (!game.FindFile(game.Text() + "\\exe\\Freelancer.exe")) return 1;
  fmt::print("{}\n", game.Text());
  return 0;
}

int RunProgram(int argc, char** argv, const StartPaths& paths) {
  KeepLargeMemoryApart();
  ApplyStoredScale(paths.ApplicationFolder);
  QApplication application(argc, argv);
  QApplication::setApplicationName("orrerix");
  QApplication::setApplicationDisplayName("");
  QApplication::setQuitOnLastWindowClosed(false);
  SetProgramStyle();
  QApplication::setWindowIcon(ApplicationIcon());
  LanguageChoice choice;
  DesktopMessageBoxes messages(choice);
  const auto sound = MakeDesktopSound();
  DesktopLinks links;
  DesktopPrinters printers(choice);
  DesktopNetwork network;
  ErrorLog log(messages, CurrentVersion(), choice);
  const auto native = NativeRegistry();
  const GameRegistry registry(log, *native);
  PictureStore pictures;
  const FormParts parts{paths, CurrentVersion(), log,     registry, messages, *sound,
                        links, printers,         network, pictures, choice};
  ProgramRun run(parts);
  run.Start();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("The universe of a game folder as a star map");
  const ProgramArguments arguments(argc, argv);
  Words words;
  AddWords(app, words);
  try {
    app.parse(arguments.Count(), arguments.Texts());
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 2;
  }
  if (words.FindGame) return PrintGame();
  int qtArgc = 1;
  return RunProgram(qtArgc, argv, PathsOf(words));
}
