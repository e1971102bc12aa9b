// SPDX-License-Identifier: MIT
// The main form, as the workbench sees it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "derived/system_grid.h"
#include "import/universe.h"
#include "routes/fastest_way.h"
#include "shell/routine.h"

namespace orrerix {

// A leg of a way between two objects, by their nicknames.
struct ShownLeg {
  LegKind Kind = LegKind::Fly;
  std::string From;
  std::string To;
};

// What the workbench asks of the main form.
class WorkbenchHost {
 public:
  virtual ~WorkbenchHost() = default;

  // The game folder that the map shows.
  virtual std::string GameText() const = 0;
  virtual std::filesystem::path UniverseFile() const = 0;

  // The universe file, open. One that cannot be read is a failure of `routine`.
  virtual Universe OpenUniverse(Routine& routine) = 0;

  // Marks cells of the map until it is called again.
  virtual void MarkCells(const std::vector<MapCell>& cells) = 0;

  // Shows the place with this nickname on the map. False if the map does not have it.
  virtual bool ShowOnMap(const std::string& nickname) = 0;

  // Draws a way on the map until it is hidden, Escape is pressed on the map or another universe is
  // shown. Legs to places that the map does not have are left out; false if that are all.
  virtual bool ShowWay(const std::vector<ShownLeg>& legs) = 0;
  virtual void HideWay() = 0;

  // Where a player is: the nickname of the system that the map shows alone, else of the station
  // that was opened last, else nothing.
  virtual std::string StartPlace() = 0;

  // Imports the game folder again. The universe that is shown stays where the import is given up.
  virtual void ImportAgain() = 0;

  // Follows changes of its files, or no more.
  virtual void WatchGame(bool on) = 0;

  // Shows another game, importing it first where it has no universe file yet.
  virtual void OpenGame(const std::string& folder) = 0;
};

}  // namespace orrerix
