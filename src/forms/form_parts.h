// SPDX-License-Identifier: MIT
// What the forms are handed at the start.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "picture/picture_store.h"
#include "platform/links.h"
#include "platform/memory_status.h"
#include "platform/message_box.h"
#include "platform/network.h"
#include "platform/printer.h"
#include "platform/sound.h"
#include "shell/error_log.h"
#include "shell/game_registry.h"
#include "shell/text_id.h"
#include "shell/version.h"

namespace orrerix {

// What a start finds by itself unless the command line says otherwise.
struct StartPaths {
  std::filesystem::path ApplicationFolder;
  std::filesystem::path Executable;
  std::optional<std::string> Game;                  // game folder instead of the registry's
  std::optional<std::filesystem::path> SaveFolder;  // instead of the one below "Personal"
  bool Debugging = false;                           // the word "debug"
  std::string NewsAddress;                          // empty: there are no news
};

// What the forms are built from; all of it outlives them.
struct FormParts {
  const StartPaths& Paths;
  const AppVersion Version;
  ErrorLog& Log;
  const GameRegistry& Registry;
  MessageBoxes& Messages;
  SoundPlayer& Sound;
  LinkOpener& Links;
  Printers& Printing;
  Network& Web;
  PictureStore& Pictures;
  LanguageChoice& Speech;  // the language in use

  // The game folder as the start finds it.
  std::string GamePath() const { return Paths.Game ? *Paths.Game : Registry.GetFLPath(); }
};

}  // namespace orrerix
