// SPDX-License-Identifier: MIT
#include "derived/dock_objects.h"

#include "db/schema.h"
#include "db/values/text.h"
#include "derived/lookup.h"
#include "derived/system_grid.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// A base's nickname begins with that of its planet: system, "_", two digits.
constexpr std::size_t kPlanetNickname = 7;

constexpr std::string_view kDockable =
    "SELECT * from Objects where (len(dock_with)>0 and not nickname like '*docking_fixture*') OR "
    "left(loadout,7) = 'SECRET_'";

class DockStage {
 public:
  DockStage(Routine& routine, Universe& universe, ImportHost& host)
      : routine_(routine), universe_(universe), host_(host), grid_(routine, universe) {}

  void Run() {
    universe_.DB.CreateTable(routine_, DockObjectsTable());
    LookUpBy(routine_, universe_, "Objects", "ucase(nickname)");
    docks_ = universe_.DB.OpenTable(routine_, "DockObjects");
    for (Recordset objects =
             universe_.DB.OpenRecordset(routine_, kDockable, {}, RecordsetType::Dynaset);
         !objects.AtEnd(); objects.MoveNext()) {
      routine_.Try([&] { Append(objects); });
      host_.Yield();
    }
  }

 private:
  void Append(Recordset& object) {
    cell_ = routine_.Or(cell_, [&] { return grid_.FindCell(object["sys_nick"].Get().Text()); });
    const double scale = SystemScale(routine_, universe_, cell_);
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
