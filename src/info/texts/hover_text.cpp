// SPDX-License-Identifier: MIT
#include "info/texts/hover_text.h"

#include "db/values/text.h"
#include "derived/commodity_names.h"
#include "derived/lookup.h"
#include "derived/owner_names.h"
#include "info/texts/text_wrap.h"
#include "map/grid/map_coords.h"

namespace orrerix {
namespace {

constexpr std::string_view kSource = "OrrerixMain.Image1_MouseMove";
constexpr std::string_view kCommodityStart = "COMMODITY_";
constexpr std::string_view kAmmoEnd = "_AMMO";

// Ammunition is traded with its gun, whose nickname it carries with an ending.
bool IsAmmo(std::string_view upperCargo) {
  return Right(upperCargo, kAmmoEnd.size()) == kAmmoEnd;
}

// Amount times price; nothing if either is Null.
Value TotalPrice(const Value& amount, const Value& price) {
  if (amount.IsNull() || price.IsNull()) return {};
  return amount.Number() * price.Number();
}

}  // namespace

void HoverWriter::Write() {
  Recordset dock = RowNamed(routine_, universe_, "DockObjects", text_);
  Recordset object = ObjectNamed(routine_, universe_, text_);
  if (dock.AtEnd() || object.AtEnd()) return;
  const std::string reputation = object["reputation"].Get().Text();
  if (!reputation.empty()) {
    WriteOwner(dock, reputation);
  } else {
    WriteCargo(object["loadout"].Get().Text());
    PutInFront(" " + dock["realname"].Get().Text() + "\r\n " +
               CoordsOf(routine_, universe_, names_, dock) + "\r\n\r\n");
  }
}

void HoverWriter::WriteOwner(Recordset& dock, const std::string& reputation) {
  const std::string coords = CoordsOf(routine_, universe_, names_, dock);
  const std::string owner = GetOwnerShortName(universe_, reputation);
  PutInFront(" " + dock["realname"].Get().Text() + "\r\n " + owner + "\r\n " + coords +
             "\r\n\r\n (Click for more) ");
}

// Each row stands in front of those before it.
void HoverWriter::WriteCargo(std::string_view loadout) {
  for (Recordset rows = universe_.DB.OpenRecordset(
           routine_,
           "SELECT Nickname, Cargo, sum(count) as Summe from Loadout_Cargo WHERE "
           "ucase(nickname) = '{}' GROUP BY NICKNAME , CARGO",
           {Ucase(loadout)});
       !rows.AtEnd(); rows.MoveNext()) {
    PutInFront(CargoLine(rows["Cargo"].Get().Text(), rows["Summe"].Get()) + std::string(kLineEnd));
  }
}

std::string HoverWriter::CargoLine(const std::string& cargo, const Value& amount) {
  Recordset good = RowNamed(routine_, universe_, "Goods", cargo);
  if (good.AtEnd()) return " NOT FOUND: " + cargo;
  const Value price = good["price"].Get();
  return " " + amount.Text() + " x " + CargoName(cargo, good) + " á " + price.Text() + " = " +
         TotalPrice(amount, price).Text();
}

std::string HoverWriter::CargoName(const std::string& cargo, Recordset& good) {
  const std::string upper = Ucase(cargo);
  if (upper.starts_with(kCommodityStart)) return RealComName(universe_, cargo);
  if (!IsAmmo(upper)) return good["realname"].Get().Text();
  Recordset gun =
      RowNamed(routine_, universe_, "Goods", upper.substr(0, upper.size() - kAmmoEnd.size()));
  return gun.AtEnd() ? "" : gun["realname"].Get().Text() + "-" + texts_.Text(TextId::Ammunition);
}

std::string HoverText(Universe& universe, const CellNames& names, TextSource& texts,
                      std::string_view tag) {
  Routine routine(universe.Log, kSource);
  HoverWriter writer(routine, universe, names, texts, tag);
  routine.Run([&] { writer.Write(); });
  return writer.Take();
}

std::string IconTag(Universe& universe, std::string_view nickname) {
  std::string tag(nickname);
  Routine routine(universe.Log, kSource);
  routine.Run([&] {
    Recordset dock = RowNamed(routine, universe, "DockObjects", nickname);
    if (!dock.AtEnd()) tag = dock["nickname"].Get().Text();
  });
  return tag;
}

bool OpensStation(Universe& universe, std::string_view tag) {
  bool opens = false;
  Routine routine(universe.Log, "OrrerixMain.Image1_Click");
  routine.Run([&] { opens = !RowNamed(routine, universe, "DockObjects", tag).AtEnd(); });
  return opens;
}

}  // namespace orrerix
