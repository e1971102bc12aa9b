// SPDX-License-Identifier: MIT
#include "info/search/search.h"

#include <cmath>
#include <unordered_map>
#include <utility>

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

std::optional<double> PriceIn(const Value& value) {
  const double price = value.Number();
  return price > 0 ? std::optional(price) : std::nullopt;
}

// Names of systems by the cell that they lie in.
class SystemsByCell {
 public:
  SystemsByCell(Routine& routine, Universe& universe) {
    for (Recordset rows = universe.DB.OpenRecordset(routine, "SELECT * FROM Systems");
         !rows.AtEnd(); rows.MoveNext()) {
      names_.try_emplace(rows["pos"].Get().Text(), rows["realname"].Get().Text());
    }
  }

  std::string NameOf(Recordset& dock) const {
    const MapCell cell{static_cast<int>(dock["MapX"].Get().Number()),
                       static_cast<int>(dock["MapY"].Get().Number())};
    const auto found = names_.find(CellText(cell));
    return found == names_.end() ? std::string() : found->second;
  }

 private:
  std::unordered_map<std::string, std::string> names_;
};

// Receives the rows of a search, each with its record: of a place that in DockObjects, and the
// market's or the bribe's where it has one.
class FoundRows {
 public:
  virtual ~FoundRows() = default;
  virtual void Add(SearchRow row, Recordset& record) = 0;
  virtual void AddSeller(SearchRow place, Recordset& dock, Recordset& offer) = 0;
};

class PlainRows : public FoundRows {
 public:
  void Add(SearchRow row, Recordset&) override { Rows.push_back(std::move(row)); }
  void AddSeller(SearchRow place, Recordset&, Recordset&) override {
    Rows.push_back(std::move(place));
  }

  std::vector<SearchRow> Rows;
};

class DetailedRows : public FoundRows {
 public:
  DetailedRows(Routine& routine, Universe& universe, SearchType type)
      : type_(type), systems_(routine, universe) {}

  // The usual price of what the sellers offer.
  void SetPrice(std::optional<double> price) { price_ = price; }

  void Add(SearchRow row, Recordset& record) override {
    SearchDetail detail;
    if (type_ == SearchType::Place) detail.System = systems_.NameOf(record);
    if (type_ == SearchType::Ship || type_ == SearchType::Equipment) {
      detail.Price = PriceIn(record["price"].Get());
    }
    Rows.push_back({std::move(row), std::move(detail)});
  }

  void AddSeller(SearchRow place, Recordset& dock, Recordset& offer) override {
    SearchDetail detail{systems_.NameOf(dock), std::nullopt};
    if (type_ == SearchType::Bribe) {
      detail.Price = PriceIn(offer["bribe_2"].Get());
    } else if (price_) {
      detail.Price = PriceIn(std::floor(*price_ * offer["val6"].Get().Number()));
    }
    Rows.push_back({std::move(place), std::move(detail)});
  }

  std::vector<DetailedRow> Rows;

 private:
  SearchType type_;
  SystemsByCell systems_;
  std::optional<double> price_;
};

// Collects the places of one row, in the order of the market.
class SellerSearch {
 public:
  SellerSearch(Routine& routine, Universe& universe, FoundRows& found)
      : routine_(routine), universe_(universe), found_(found) {}

  void AddMarkets(std::string_view query, std::string_view good) {
    for (Recordset rows = universe_.DB.OpenRecordset(routine_, query, {Ucase(good)}); !rows.AtEnd();
         rows.MoveNext()) {
      const std::string base = rows["Base"].Get().Text();
      Recordset dock = DockOf(DockingRingOf(base).value_or(base));
      if (!dock.AtEnd()) found_.AddSeller(PlaceOf(dock), dock, rows);
    }
  }

  // A base with several bribing persons is listed once. The bar is on the planet, so its docking
  // ring does not stand in for it.
  void AddBribes(std::string_view group) {
    std::optional<std::string> last;
    for (Recordset rows = universe_.DB.OpenRecordset(
             routine_, "SELECT * from GF_NPC where ucase(bribe) = '{}' ORDER BY ucase(BaseNick)",
             {Ucase(group)});
         !rows.AtEnd(); rows.MoveNext()) {
      Recordset dock = DockOf(rows["BaseNick"].Get().Text());
      if (dock.AtEnd()) continue;
      SearchRow place = PlaceOf(dock);
      if (last == place.Nickname) continue;
      last = place.Nickname;
      found_.AddSeller(std::move(place), dock, rows);
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
  // base; without a row if the map has neither.
  Recordset DockOf(const std::string& nickname) {
    Recordset dock = RowNamed(routine_, universe_, "DockObjects", nickname);
    if (dock.AtEnd()) {
      routine_.Try(
          [&] { dock = RowNamed(routine_, universe_, "DockObjects", WithoutBaseEnd(nickname)); });
    }
    return dock;
  }

  static SearchRow PlaceOf(Recordset& dock) {
    return {dock["nickname"].Get().Text(), dock["realname"].Get().Text(), ""};
  }

  Routine& routine_;
  Universe& universe_;
  FoundRows& found_;
};

void AddFound(Routine& routine, Universe& universe, SearchType type, std::string_view text,
              FoundRows& found) {
  const SearchQuery query = QueryOf(type);
  for (Recordset rows = universe.DB.OpenRecordset(routine, query.Text, {Ucase(text)});
       !rows.AtEnd(); rows.MoveNext()) {
    SearchRow row{rows["nickname"].Get().Text(), rows[query.NameField].Get().Text(), ""};
    if (type == SearchType::Ship) row.Package = rows["packagename"].Get().Text();
    found.Add(std::move(row), rows);
  }
}

void AddSellers(Routine& routine, Universe& universe, SearchType type, const SearchRow& row,
                FoundRows& found) {
  SellerSearch sellers(routine, universe, found);
  switch (type) {
    case SearchType::Place:
      return;
    case SearchType::Ship:
      return sellers.AddMarkets("SELECT * FROM BaseGoods WHERE ucase(GoodNick) = '{}' AND Val5 = 0",
                                row.Package);
    case SearchType::Equipment:
      return sellers.AddMarkets("SELECT * FROM BaseGoods WHERE ucase(GoodNick) = '{}'",
                                row.Nickname);
    case SearchType::Bribe:
      return sellers.AddBribes(row.Nickname);
  }
}

constexpr const char* kSellersSource = "OrrerixMain.SubSearch_Click";

// A ship costs what its package does, which the import has added up.
std::optional<double> UsualPrice(Routine& routine, Universe& universe, SearchType type,
                                 const SearchRow& row) {
  if (type == SearchType::Place || type == SearchType::Bribe) return std::nullopt;
  Recordset item =
      RowNamed(routine, universe, type == SearchType::Ship ? "Ships" : "Goods", row.Nickname);
  return item.AtEnd() ? std::nullopt : PriceIn(item["price"].Get());
}

}  // namespace

std::vector<SearchRow> Search(Universe& universe, SearchType type, std::string_view text) {
  PlainRows found;
  Routine routine(universe.Log, SearchSource(type));
  routine.Run([&] { AddFound(routine, universe, type, text, found); });
  return std::move(found.Rows);
}

std::vector<SearchRow> SellersOf(Universe& universe, SearchType type, const SearchRow& row) {
  PlainRows found;
  Routine routine(universe.Log, kSellersSource);
  routine.Run([&] { AddSellers(routine, universe, type, row, found); });
  return std::move(found.Rows);
}

std::vector<DetailedRow> SearchInDetail(Universe& universe, SearchType type,
                                        std::string_view text) {
  std::optional<DetailedRows> found;
  Routine routine(universe.Log, SearchSource(type));
  routine.Run([&] {
    found.emplace(routine, universe, type);
    AddFound(routine, universe, type, text, *found);
  });
  return found ? std::move(found->Rows) : std::vector<DetailedRow>();
}

std::vector<DetailedRow> SellersInDetail(Universe& universe, SearchType type,
                                         const SearchRow& row) {
  std::optional<DetailedRows> found;
  Routine routine(universe.Log, kSellersSource);
  routine.Run([&] {
    found.emplace(routine, universe, type);
    found->SetPrice(UsualPrice(routine, universe, type, row));
    AddSellers(routine, universe, type, row, *found);
  });
  return found ? std::move(found->Rows) : std::vector<DetailedRow>();
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
