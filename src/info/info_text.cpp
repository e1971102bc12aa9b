// SPDX-License-Identifier: MIT
#include "info/info_text.h"

#include <fmt/format.h>

#include "import/resource_strings.h"
#include "info/equipment_text.h"
#include "info/ship_text.h"
#include "info/table_row.h"

namespace orrerix {
namespace {

void WriteShipText(Routine& routine, Universe& universe, std::string_view nickname,
                   std::string& text) {
  TableRow ship(routine, universe, "Ships", "nickname", nickname);
  if (!ship.Found()) return;
  text += "\r\n";
  WriteShipHead(routine, universe, ship, text);
  text += " Extra-Stats\r\n\r\n";
  WriteShipFigures(routine, ship, text);
}

void WriteGroupText(Routine& routine, Universe& universe, std::string_view nickname,
                    std::string& text) {
  TableRow group(routine, universe, "Groups", "nickname", nickname);
  if (!group.Found()) return;
  routine.Try([&] {
    text += "\r\n" + group.Text("Name") + "\r\n\r\n" +
            GetChangeInfo(universe, group["ids_info"].RequireLong());
  });
}

}  // namespace

std::string GetInfoTextType(Universe& universe, const Wording& wording, std::string_view nickname,
                            InfoType type) {
  std::string text;
  Routine routine(universe.Log, "OrrerixMain.GetInfoTextType", [&] {
    return fmt::format("While getting Infodata for {} Type #{}", nickname, static_cast<int>(type));
  });
  routine.Run([&] {
    switch (type) {
      case InfoType::Ship:
        return WriteShipText(routine, universe, nickname, text);
      case InfoType::Equipment:
        return WriteEquipmentText(routine, universe, wording, nickname, text);
      case InfoType::Group:
        return WriteGroupText(routine, universe, nickname, text);
    }
  });
  return text;
}

}  // namespace orrerix
