// SPDX-License-Identifier: MIT
#include "info/texts/ship_text.h"

#include "import/resources/resource_strings.h"

namespace orrerix {
namespace {

// The three parts of a figure, each after a TAB.
std::string ThreeParts(TableRow& ship, const std::string& field) {
  return "\t" + ship.Text(field + "1") + "\t" + ship.Text(field + "2") + "\t" +
         ship.Text(field + "3");
}

}  // namespace

void ShipWriter::WriteHead(TableRow& ship) {
  routine_.Try([&] { text_ += "   Price: " + ship.Text("price") + "   -  "; });
  routine_.Try([&] {
    text_ += GetChangeInfo(universe_, ship["ids_info1"].RequireLong()) +
             GetChangeInfo(universe_, ship["ids_info"].RequireLong()) + "\r\n";
  });
}

void ShipWriter::WriteFigures(TableRow& ship) {
  routine_.Try([&] { text_ += " Mass:    \t" + ship.Text("mass") + "\r\n"; });
  routine_.Try([&] { text_ += " Steering:" + ThreeParts(ship, "steering") + "\r\n"; });
  routine_.Try([&] { text_ += " Angular: " + ThreeParts(ship, "angular") + "\r\n"; });
  routine_.Try([&] { text_ += " Rotation:" + ThreeParts(ship, "rotation") + "\r\n"; });
  routine_.Try([&] { text_ += " Nudge-Force:\t" + ship.Text("nudge_force") + "\r\n"; });
  routine_.Try([&] {
    text_ += " Strafe-Force/-Powerusage: \t" + ship.Text("strafe_force") + "/" +
             ship.Text("strafe_power_usage");
  });
}

}  // namespace orrerix
