// SPDX-License-Identifier: MIT
#include "info/texts/info_text.h"

#include <fmt/format.h>

#include "import/resources/resource_strings.h"
#include "info/texts/equipment_text.h"
#include "info/texts/ship_text.h"
#include "info/texts/table_row.h"

namespace orrerix {
namespace {

void WriteShip(ShipWriter& writer, Routine& routine, Universe& universe,
               std::string_view nickname) {
  TableRow ship(routine, universe, "Ships", "nickname", nickname);
  if (!ship.Found()) return;
  writer.Add("\r\n");
  writer.WriteHead(ship);
  writer.Add(" Extra-Stats\r\n\r\n");
  writer.WriteFigures(ship);
}

std::string GroupText(Routine& routine, Universe& universe, std::string_view nickname) {
  TableRow group(routine, universe, "Groups", "nickname", nickname);
  if (!group.Found()) return {};
  return routine.Or(std::string(), [&] {
    return "\r\n" + group.Text("Name") + "\r\n\r\n" +
           GetChangeInfo(universe, group["ids_info"].RequireLong());
  });
}

}  // namespace

std::string GetInfoTextType(Universe& universe, const Wording& wording, std::string_view nickname,
                            InfoType type) {
  Routine routine(universe.Log, "OrrerixMain.GetInfoTextType", [&] {
    return fmt::format("While getting Infodata for {} Type #{}", nickname, static_cast<int>(type));
  });
  ShipWriter ship(routine, universe);
  EquipmentWriter equipment(routine, universe, wording, nickname);
  std::string group;
  routine.Run([&] {
    switch (type) {
      case InfoType::Ship:
        return WriteShip(ship, routine, universe, nickname);
      case InfoType::Equipment:
        return equipment.Write();
      case InfoType::Group:
        group = GroupText(routine, universe, nickname);
    }
  });
  return ship.Take() + equipment.Take() + group;
}

}  // namespace orrerix
