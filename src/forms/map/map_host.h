// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "import/universe.h"
#include "platform/game_path.h"
#include "shell/routine.h"

namespace orrerix {

// What the map asks of the form that it stands on.
class MapHost {
 public:
  virtual ~MapHost() = default;

  // The one redraw.
  virtual void Redraw() = 0;

  // Reads all captions in the language in use.
  virtual void ReadCaptions() = 0;

  // The universe file, open. One that cannot be read is a failure of `routine`.
  virtual Universe OpenUniverse(Routine& routine) = 0;

  // The game folder, below which the sounds are.
  virtual GameFolder Game() const = 0;

  virtual bool SearchPanelOpen() const = 0;

  // Opens one more station window. `picture` is the name of the icon's picture.
  virtual void ShowStation(const std::string& nickname, const std::string& picture) = 0;

  // A click on a tool icon.
  virtual void UseTool(int index) = 0;

  // A click on a news label, and on one of the two halves of the logo.
  virtual void OpenNewsLink(int index) = 0;
  virtual void OpenLogoPage(bool firstHalf) = 0;
};

}  // namespace orrerix
