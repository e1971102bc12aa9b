// SPDX-License-Identifier: MIT
#include "info/ship_text.h"

#include <string_view>

#include "import/resource_strings.h"

namespace orrerix {
namespace {

// The three parts of a figure, each after a TAB.
std::string ThreeParts(TableRow& ship, const std::string& field) {
  return "\t" + ship.Text(field + "1") + "\t" + ship.Text(field + "2") + "\t" +
         ship.Text(field + "3");
}

}  // namespace

void WriteShipHead(Routine& routine, Universe& universe, TableRow& ship, std::string& text) {
  routine.Try([&] { text += "   Price: " + ship.Text("price") + "   -  "; });
  routine.Try([&] {
    text += GetChangeInfo(universe, ship["ids_info1"].RequireLong()) +
            GetChangeInfo(universe, ship["ids_info"].RequireLong()) + "\r\n";
  });
}

void WriteShipFigures(Routine& routine, TableRow& ship, std::string& text) {
  routine.Try([&] { text += " Mass:    \t" + ship.Text("mass") + "\r\n"; });
  routine.Try([&] { text += " Steering:" + ThreeParts(ship, "steering") + "\r\n"; });
  routine.Try([&] { text += " Angular: " + ThreeParts(ship, "angular") + "\r\n"; });
  routine.Try([&] { text += " Rotation:" + ThreeParts(ship, "rotation") + "\r\n"; });
  routine.Try([&] { text += " Nudge-Force:\t" + ship.Text("nudge_force") + "\r\n"; });
  routine.Try([&] {
    text += " Strafe-Force/-Powerusage: \t" + ship.Text("strafe_force") + "/" +
            ship.Text("strafe_power_usage");
  });
}

}  // namespace orrerix
