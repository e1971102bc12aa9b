// SPDX-License-Identifier: MIT
#include "derived/dock_objects.h"

#include <span>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "db/schema.h"
#include "db/values/text.h"
#include "derived/lookup.h"
#include "derived/system_grid.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// A base's nickname begins with that of its planet: system, "_", two digits.
constexpr std::size_t kPlanetNickname = 7;

// Anything to dock with but docking fixtures, and anything with a secret loadout.
bool IsDockable(const HeldRows::Cell& dockWith, const HeldRows::Cell& nickname,
                const HeldRows::Cell& loadout) {
  constexpr std::string_view secret = "SECRET_";
  const auto* load = std::get_if<std::string_view>(&loadout);
  if (load != nullptr && EqualIgnoringCase(load->substr(0, secret.size()), secret)) return true;
  const auto* base = std::get_if<std::string_view>(&dockWith);
  const auto* name = std::get_if<std::string_view>(&nickname);
  return base != nullptr && !base->empty() && name != nullptr &&
         !Contains(FoldAscii(*name), "docking_fixture");
}

class DockStage {
 public:
  DockStage(Routine& routine, Universe& universe, ImportHost& host)
      : routine_(routine), universe_(universe), host_(host), grid_(routine, universe) {}

  void Run() {
    universe_.DB.CreateHeldTable(routine_, DockObjectsTable());
    docks_ = universe_.DB.OpenTable(routine_, "DockObjects");
    for (Recordset objects = OpenDockables(); !objects.AtEnd(); objects.MoveNext()) {
      routine_.Try([&] { Append(objects); });
      host_.Yield();
    }
  }

 private:
  Recordset OpenDockables() {
    std::vector<std::int64_t> numbers;
    universe_.DB.VisitRows(routine_, "Objects", {"dock_with", "nickname", "loadout"},
                           [&](std::int64_t number, std::span<const HeldRows::Cell> object) {
                             if (IsDockable(object[0], object[1], object[2])) {
                               numbers.push_back(number);
                             }
                           });
    return universe_.DB.OpenRows(routine_, "Objects", std::move(numbers));
  }

  void Append(Recordset& object) {
    cell_ = routine_.Or(cell_, [&] { return grid_.FindCell(object["sys_nick"].Get().Text()); });
    const double scale = grid_.Scale(cell_);
    const auto [position, place] = routine_.Or(PlacedObject{{}, place_}, [&] {
      return PlaceObject(routine_, object["pos"].Get().Text(), scale, place_);
    });
    place_ = place;

    docks_.AddNew();
    docks_["nickname"] = object["nickname"];
    docks_["realname"] = object["realname"];
    docks_["loadout"] = object["loadout"];
    docks_["owner"] = object["reputation"];
    docks_["MapX"] = cell_.X;
    docks_["MapY"] = cell_.Y;
    docks_["PosX"] = place_.X;
    docks_["PosY"] = place_.Y;
    routine_.Try([&] {
      if (object["loadout"].Get().Text().starts_with("docking_ring")) NameAfterPlanet(object);
    });
    // The file has the height second; here it comes last.
    docks_["abs_x"] = position.X;
    docks_["abs_y"] = position.Z;
    docks_["abs_z"] = position.Height;
    docks_.Update();
  }

  void NameAfterPlanet(Recordset& ring) {
    const std::string base =
        routine_.Or(std::string(), [&] { return ring["dock_with"].Get().Text(); });
    Recordset planet = ObjectNamed(routine_, universe_, Left(base, kPlanetNickname));
    if (planet.AtEnd()) planet = ObjectNamed(routine_, universe_, base);
    if (planet.AtEnd()) return;
    const std::string name =
        routine_.Or(std::string(), [&] { return "Dockring: " + planet["realname"].Get().Text(); });
    ring.Edit();
    ring["realname"] = name;
    ring.Update();
    docks_["realname"] = name;
  }

  Routine& routine_;
  Universe& universe_;
  ImportHost& host_;
  SystemGrid grid_;
  Recordset docks_;
  // What a failed step leaves unset keeps its last content.
  MapCell cell_;
  CellFraction place_;
};

}  // namespace

void CalcDockObjects(Universe& universe, ImportHost& host) {
  Routine routine(universe.Log, "OrrerixMain.CalcDockObjects",
                  "While calculating dockable objects");
  routine.Run([&] { DockStage(routine, universe, host).Run(); });
}

}  // namespace orrerix
