// SPDX-License-Identifier: MIT
#include "info/search/search.h"

#include "db/values/text.h"
#include "derived/lookup.h"

namespace orrerix {
namespace {

struct SearchQuery {
  std::string_view Text;
  std::string_view NameField;
};

SearchQuery QueryOf(SearchType type) {
  switch (type) {
    case SearchType::Place:
      return {"SELECT * from DockObjects WHERE ucase(realname) like '*{}*' ORDER BY realname",
              "realname"};
    case SearchType::Ship:
      return {
          "SELECT * FROM Ships WHERE len(packagename) > 0 AND ucase(Realname) like '*{}*' "
          "ORDER BY ucase(Realname)",
          "realname"};
    case SearchType::Equipment:
      return {
          "SELECT * FROM Goods WHERE ucase(category) = 'EQUIPMENT' and realname <> '0 - 0' "
          "AND ucase(realname) like '*{}*' ORDER BY ucase(realname)",
          "realname"};
    case SearchType::Bribe:
      break;
  }
  return {"SELECT * from Groups where ucase(Name) like '*{}*'", "Name"};
}

std::string_view SearchSource(SearchType type) {
  return type == SearchType::Place ? "OrrerixMain.StSearchText_Change"
                                   : "OrrerixMain.StationSearch_Text";
}

// Collects the places of one row, in the order of the market.
class SellerSearch {
 public:
  SellerSearch(Routine& routine, Universe& universe, std::vector<SearchRow>& found)
      : routine_(routine), universe_(universe), found_(found) {}

  void AddMarkets(std::string_view query, std::string_view good) {
    for (Recordset rows = universe_.DB.OpenRecordset(routine_, query, {Ucase(good)}); !rows.AtEnd();
         rows.MoveNext()) {
      const std::string base = rows["Base"].Get().Text();
      if (auto place = PlaceOnMap(DockingRingOf(base).value_or(base))) {
        found_.push_back(std::move(*place));
      }
    }
  }

  // A base with several bribing persons is listed once. The bar is on the planet, so its docking
  // ring does not stand in for it.
  void AddBribes(std::string_view group) {
    for (Recordset rows = universe_.DB.OpenRecordset(
             routine_, "SELECT * from GF_NPC where ucase(bribe) = '{}' ORDER BY ucase(BaseNick)",
             {Ucase(group)});
         !rows.AtEnd(); rows.MoveNext()) {
      auto place = PlaceOnMap(rows["BaseNick"].Get().Text());
      if (!place) continue;
      if (!found_.empty() && found_.back().Nickname == place->Nickname) continue;
      found_.push_back(std::move(*place));
    }
  }

 private:
  std::optional<std::string> DockingRingOf(std::string_view base) {
    Recordset ring = universe_.DB.OpenRecordset(
        routine_,
        "SELECT * from Objects WHERE ucase(dock_with) = '{}' AND ucase(archetype)='DOCK_RING'",
        {Ucase(base)});
    if (ring.AtEnd()) return std::nullopt;
    return ring["nickname"].Get().Text();
  }

  // The place on the map with a nickname, or else the one whose nickname lacks the ending of a
  // base.
  std::optional<SearchRow> PlaceOnMap(const std::string& nickname) {
    Recordset dock = RowNamed(routine_, universe_, "DockObjects", nickname);
    if (dock.AtEnd()) {
      routine_.Try(
          [&] { dock = RowNamed(routine_, universe_, "DockObjects", WithoutBaseEnd(nickname)); });
    }
    if (dock.AtEnd()) return std::nullopt;
    return SearchRow{dock["nickname"].Get().Text(), dock["realname"].Get().Text(), ""};
  }

  Routine& routine_;
  Universe& universe_;
  std::vector<SearchRow>& found_;
};

}  // namespace

std::vector<SearchRow> Search(Universe& universe, SearchType type, std::string_view text) {
  std::vector<SearchRow> found;
  Routine routine(universe.Log, SearchSource(type));
  routine.Run([&] {
    const SearchQuery query = QueryOf(type);
    for (Recordset rows = universe.DB.OpenRecordset(routine, query.Text, {Ucase(text)});
         !rows.AtEnd(); rows.MoveNext()) {
      SearchRow row{rows["nickname"].Get().Text(), rows[query.NameField].Get().Text(), ""};
      if (type == SearchType::Ship) row.Package = rows["packagename"].Get().Text();
      found.push_back(std::move(row));
    }
  });
  return found;
}

std::vector<SearchRow> SellersOf(Universe& universe, SearchType type, const SearchRow& row) {
  std::vector<SearchRow> found;
  Routine routine(universe.Log, "OrrerixMain.SubSearch_Click");
  routine.Run([&] {
    SellerSearch sellers(routine, universe, found);
    switch (type) {
      case SearchType::Place:
        return;
      case SearchType::Ship:
        return sellers.AddMarkets(
            "SELECT * FROM BaseGoods WHERE ucase(GoodNick) = '{}' AND Val5 = 0", row.Package);
      case SearchType::Equipment:
        return sellers.AddMarkets("SELECT * FROM BaseGoods WHERE ucase(GoodNick) = '{}'",
                                  row.Nickname);
      case SearchType::Bribe:
        return sellers.AddBribes(row.Nickname);
    }
  });
  return found;
}

std::optional<JumpTarget> JumpTargetOf(Routine& routine, Universe& universe,
                                       std::string_view nickname) {
  Recordset dock = RowNamed(routine, universe, "DockObjects", nickname);
  if (dock.AtEnd()) return std::nullopt;
  return JumpTarget{dock["nickname"].Get().Text(),
                    {static_cast<int>(dock["mapx"].Get().Number()),
                     static_cast<int>(dock["mapy"].Get().Number())}};
}

std::optional<InfoType> InfoTypeOf(SearchType type) {
  switch (type) {
    case SearchType::Ship:
      return InfoType::Ship;
    case SearchType::Equipment:
      return InfoType::Equipment;
    case SearchType::Bribe:
      return InfoType::Group;
    case SearchType::Place:
      break;
  }
  return std::nullopt;
}

}  // namespace orrerix
