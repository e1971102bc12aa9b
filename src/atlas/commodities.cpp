// SPDX-License-Identifier: MIT
#include "atlas/families.h"
#include "atlas/sales.h"

namespace orrerix {
namespace {

constexpr double kSoldAndTaken = 1;  // column Sell of BaseGoodPrices
constexpr double kTaken = 2;

struct Trade {
  double Price = 0;
  std::size_t Base = 0;
};

struct Commodity {
  SourceRow Good;
  SourceRow Section;
  std::optional<Trade> Cheapest;
  std::optional<Trade> Dearest;
  std::string CheapestBase;
  std::string DearestBase;
  Sellers SoldBy;
  Sellers TakenBy;
  std::string SoldAt;

  Figure Lowest() const { return Cheapest ? Figure(Cheapest->Price) : std::nullopt; }
  Figure Highest() const { return Dearest ? Figure(Dearest->Price) : std::nullopt; }
  Figure Spread() const { return Difference(Highest(), Lowest()); }
};

using CommodityColumns = ColumnList<Commodity>;

Column<Commodity> GoodFigure(std::string id, std::string head, std::string formula,
                             std::function<Figure(const Commodity&)> figure) {
  return {
      std::move(id), std::move(head), std::move(formula),
      [figure = std::move(figure)](const Commodity& good) { return FigureValue(figure(good)); }};
}

Column<Commodity> GoodText(std::string id, std::string head, std::string formula,
                           std::function<std::string(const Commodity&)> text) {
  return {std::move(id), std::move(head), std::move(formula),
          [text = std::move(text)](const Commodity& good) { return TextValueOf(text(good)); }};
}

CommodityColumns PriceColumns() {
  return {GoodFigure("price", "List price (credits)", "price of [Good]; empty if it is 0",
                     [](const Commodity& c) { return UnlessZero(c.Good.Number("price")); }),
          GoodFigure("cheapest", "Cheapest (credits)",
                     "lowest price of a base that sells it; prices are list price * factor of "
                     "the market line, rounded",
                     [](const Commodity& c) { return c.Lowest(); }),
          GoodText("cheapest_at", "Cheapest at", "the first base with this price",
                   [](const Commodity& c) { return c.CheapestBase; }),
          GoodFigure("dearest", "Dearest (credits)",
                     "highest price of a base that takes it; what a base sells it also takes",
                     [](const Commodity& c) { return c.Highest(); }),
          GoodText("dearest_at", "Dearest at", "the first base with this price",
                   [](const Commodity& c) { return c.DearestBase; }),
          GoodFigure("spread", "Spread (credits)", "dearest - cheapest",
                     [](const Commodity& c) { return c.Spread(); }),
          GoodFigure(
              "spread_percent", "Spread (%)", "100 * spread / cheapest",
              [](const Commodity& c) { return Product(100.0, Quotient(c.Spread(), c.Lowest())); }),
          GoodFigure(
              "spread_volume", "Spread per volume (credits/unit of hold)", "spread / volume",
              [](const Commodity& c) { return Quotient(c.Spread(), c.Section.Number("volume")); })};
}

CommodityColumns AllCommodityColumns() {
  return Joined<Commodity>(
      {{GoodText("name", "Name", "name of the good",
                 [](const Commodity& c) { return c.Good.Text("realname"); }),
        GoodText("nickname", "Nickname", "nickname of [Good]",
                 [](const Commodity& c) { return c.Good.Text("nickname"); })},
       PriceColumns(),
       {GoodFigure("volume", "Volume (units of hold)", "volume of [Commodity]",
                   [](const Commodity& c) { return c.Section.Number("volume"); }),
        GoodFigure("decay", "Decay (pieces/s)", "decay_per_second of [Commodity]",
                   [](const Commodity& c) { return c.Section.Number("decay_per_second"); }),
        GoodFigure(
            "sellers", "Sellers (bases)", "number of bases that sell it",
            [](const Commodity& c) -> Figure { return static_cast<double>(c.SoldBy.size()); }),
        GoodFigure(
            "takers", "Takers (bases)", "number of bases that take it and do not sell it",
            [](const Commodity& c) -> Figure { return static_cast<double>(c.TakenBy.size()); }),
        GoodText("sold_at", "Sold at", "the bases that sell it, with their systems",
                 [](const Commodity& c) { return c.SoldAt; })}});
}

// Of several docks of a base the first one with the good counts.
void AddPrices(const AtlasSource& source, Commodity& commodity) {
  std::vector<bool> isKnown(source.Bases.Bases().size());
  const std::string good = commodity.Good.Text("nickname");
  for (const SourceRow& row : source.Tables["BaseGoodPrices"].FindAll("GoodNick", good)) {
    const auto base = source.Bases.FindByDock(row.Text("BaseNick"));
    const Figure price = row.Number("Price");
    const Figure sell = row.Number("Sell");
    const bool isTraded = sell == kSoldAndTaken || sell == kTaken;
    if (!base || isKnown[*base] || !price || *price < 1 || !isTraded) continue;
    isKnown[*base] = true;
    (sell == kSoldAndTaken ? commodity.SoldBy : commodity.TakenBy).push_back(*base);
    const bool isCheaper = !commodity.Cheapest || *price < commodity.Cheapest->Price;
    if (sell == kSoldAndTaken && isCheaper) commodity.Cheapest = Trade{*price, *base};
    if (!commodity.Dearest || *price > commodity.Dearest->Price) {
      commodity.Dearest = Trade{*price, *base};
    }
  }
}

Commodity Describe(const AtlasSource& source, const SourceRow& good) {
  Commodity commodity;
  commodity.Good = good;
  const SourceTable& sections = source.Tables["commodity"];
  commodity.Section = sections.Find("nickname", good.Text("equipment"));
  if (!commodity.Section.Exists()) {
    commodity.Section = sections.Find("nickname", good.Text("nickname"));
  }
  AddPrices(source, commodity);
  const auto labelOf = [&](const std::optional<Trade>& trade) {
    return trade ? source.Bases.Bases()[trade->Base].Label() : std::string();
  };
  commodity.CheapestBase = labelOf(commodity.Cheapest);
  commodity.DearestBase = labelOf(commodity.Dearest);
  commodity.SoldAt = LabelsOf(source.Bases, commodity.SoldBy);
  return commodity;
}

std::vector<Commodity> ReadCommodities(const AtlasSource& source) {
  std::vector<Commodity> commodities;
  for (const SourceRow& good : source.Tables["Goods"].FindAll("category", "commodity")) {
    commodities.push_back(Describe(source, good));
  }
  return commodities;
}

}  // namespace

AtlasTable CommoditiesTable() {
  return MakeTable<Commodity>({"commodities", "Commodities", "Goods of category commodity."},
                              AllCommodityColumns(), ReadCommodities);
}

}  // namespace orrerix
