// SPDX-License-Identifier: MIT
// All tables of the atlas with what belongs to their rows, read beside the event loop.
#pragma once

#include <QString>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/sales.h"
#include "db/rows/stored_table.h"
#include "forms/workbench/background_task.h"

namespace orrerix {

struct AtlasShip {
  std::string Nickname;
  QString Text;                 // its name, with the nickname
  std::set<std::string> Types;  // of equipment that it takes, in lower case (ASCII)
};

// A base as the map finds it.
struct AtlasPlace {
  std::string Dock;  // nickname of the first object that docks there
  QString Text;      // its name and system
};

struct AtlasContent {
  struct Table {
    const AtlasTable* About;
    StoredTable Rows;
    std::vector<Sellers> Places;  // of each row, as indexes of AtlasContent::Places
  };

  std::vector<Table> Tables;     // as in AtlasTables()
  std::vector<AtlasShip> Ships;  // by their texts
  std::vector<AtlasPlace> Places;
  QString Error;  // why there are no tables
};

// Reads the atlas of a universe file. A file that cannot be read is named in Error; so is nothing
// if the work was cancelled, and tables are missing.
AtlasContent ReadAtlas(const std::filesystem::path& universe,
                       const BackgroundTask::IsCancelled& isCancelled);

}  // namespace orrerix
