// SPDX-License-Identifier: MIT
#include "atlas/row_places.h"

#include "atlas/equipment.h"
#include "atlas/packages.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

Sellers BasesWith(const AtlasSource& source, std::string AtlasBase::*field,
                  const std::string& text) {
  Sellers places;
  const auto& bases = source.Bases.Bases();
  for (std::size_t i = 0; i < bases.size(); ++i) {
    if (EqualIgnoringCase(bases[i].*field, text)) places.push_back(i);
  }
  return places;
}

Sellers TheBase(const AtlasSource& source, const std::string& nickname) {
  const auto base = source.Bases.Find(nickname);
  return base ? Sellers{*base} : Sellers();
}

Sellers PlacesOf(const std::string& table, const std::string& nickname, const AtlasSource& source) {
  if (nickname.empty()) return {};
  if (table == "bases" || table == "bribes") return TheBase(source, nickname);
  if (table == "systems") return BasesWith(source, &AtlasBase::System, nickname);
  if (table == "factions") return BasesWith(source, &AtlasBase::Owner, nickname);
  if (table == "commodities") return source.Sales.SellersOf(nickname);
  if (table == "ships") {
    const SourceRow ship = source.Tables["Ships"].Find("NickName", nickname);
    return source.Sales.SellersOfAny(PackagesOf(source.Tables, ship));
  }
  return source.Sales.SellersOf(GoodOfEquipment(source, nickname).Text("nickname"));
}

}  // namespace

std::vector<Sellers> PlacesOfRows(const AtlasTable& table, const StoredTable& rows,
                                  const AtlasSource& source) {
  std::vector<Sellers> places(rows.RowCount());
  const auto column = table.Find(table.Id == "bribes" ? "base_nickname" : "nickname");
  if (!column) return places;
  for (std::size_t i = 0; i < places.size(); ++i) {
    places[i] = PlacesOf(table.Id, rows.Row(i)[*column].Text(), source);
  }
  return places;
}

}  // namespace orrerix
