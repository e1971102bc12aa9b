// SPDX-License-Identifier: MIT
#include "info/station/station_data.h"

#include "db/values/text.h"
#include "derived/lookup.h"
#include "derived/owner_names.h"
#include "import/resources/resource_strings.h"
#include "info/station/station_market.h"
#include "info/texts/text_wrap.h"
#include "map/grid/map_coords.h"

namespace orrerix {
namespace {

constexpr std::string_view kTwoLineEnds = "\r\n\r\n";
constexpr std::string_view kDockringStart = "Dockring:";

class StationReader {
 public:
  StationReader(Routine& routine, Universe& universe, const CellNames& names, TextSource& texts,
                std::string_view nickname)
      : routine_(routine),
        universe_(universe),
        names_(names),
        texts_(texts),
        nickname_(nickname),
        market_(routine, universe, nickname) {}

  void Run(StationMode mode) {
    data_.Base = nickname_;
    Recordset object = ObjectNamed(routine_, universe_, nickname_);
    if (!object.AtEnd()) {
      const std::string base(Trim(object["dock_with"].Get().Text()));
      if (!base.empty()) data_.Base = base;
    }
    if (Recordset dock = RowOnMap(); !dock.AtEnd()) {
      WriteTexts(dock, object);
      market_.ReadPrices(data_.Base, mode);
    }
    market_.ReadShips(data_.Base);
    market_.ReadEquipment(data_.Base);
  }

  // What is read so far.
  StationData Take() {
    data_.Prices = market_.TakePrices();
    data_.Ships = market_.TakeShips();
    data_.Equipment = market_.TakeEquipment();
    return std::move(data_);
  }

 private:
  Recordset RowOnMap() { return RowNamed(routine_, universe_, "DockObjects", nickname_); }

  void WriteTexts(Recordset& dock, Recordset& object) {
    const std::string realname = dock["realname"].Get().Text();
    data_.Caption = realname + "  " + CoordsOf(routine_, universe_, names_, dock);
    const std::string reputation =
        object.AtEnd() ? std::string() : object["reputation"].Get().Text();
    if (!reputation.empty()) {
      data_.Caption +=
          "  " + texts_.Text(TextId::Owner) + ": " + GetOwnerShortName(universe_, reputation);
    }
    data_.Info = std::string(kLineEnd) + data_.Caption + std::string(kTwoLineEnds);
    if (object.AtEnd()) return;
    AddInfo(object);
    if (Contains(data_.Info, "CLASS")) AddSecondHalf(object);
    if (realname.starts_with(kDockringStart)) AddPlanet(object);
    if (!reputation.empty()) AddOwner(reputation);
  }

  void AddInfo(Recordset& object) {
    routine_.Try([&] {
      data_.Info += GetChangeInfo(universe_, object["ids_info"].RequireLong());
      data_.Info += kTwoLineEnds;
    });
  }

  // The game keeps the second half of some texts under the next number.
  void AddSecondHalf(Recordset& object) {
    routine_.Try([&] {
      const double next = object["ids_info"].RequireLong() + 1.0;
      data_.Info += GetChangeInfo(universe_, orrerix::RequireLong(next));
      data_.Info += kTwoLineEnds;
    });
  }

  // A docking ring shows its planet's text too, and has the planet's market.
  void AddPlanet(Recordset& ring) {
    std::string planetName;
    const bool named =
        routine_.Try([&] { planetName = WithoutBaseEnd(ring["dock_with"].Get().Text()); });
    if (!named) return;
    Recordset planet = ObjectNamed(routine_, universe_, planetName);
    if (planet.AtEnd()) return;
    data_.Base = planetName;
    AddInfo(planet);
    if (Contains(Ucase(data_.Info), "DIAMETER")) AddSecondHalf(planet);
  }

  void AddOwner(const std::string& reputation) {
    data_.Info += GetOwnerName(universe_, reputation);
    data_.Info += kTwoLineEnds;
    data_.Info += GetOwnerInfo(universe_, reputation);
    data_.Info += kLineEnd;
  }

  Routine& routine_;
  Universe& universe_;
  const CellNames& names_;
  TextSource& texts_;
  std::string_view nickname_;
  StationData data_;
  MarketReader market_;
};

}  // namespace

StationData ReadStation(Universe& universe, const CellNames& names, TextSource& texts,
                        std::string_view nickname, StationMode mode) {
  Routine routine(universe.Log, "StationInfo.Form_Initialize", "While initializing Station-Infos");
  StationReader reader(routine, universe, names, texts, nickname);
  routine.Run([&] { reader.Run(mode); });
  return reader.Take();
}

}  // namespace orrerix
