// SPDX-License-Identifier: MIT
// The work of the page of commodities, done beside the event loop.
#pragma once

#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/workbench/cell_table.h"
#include "forms/workbench/travel/trade_worlds.h"
#include "routes/good_offers.h"

namespace orrerix {

// What a player asks for. Without a start goods are bought anywhere.
struct GoodsWishes {
  TravelRequest Travel;
  std::optional<std::int64_t> Hold;  // none: that of the ship, else 100
  std::optional<std::int64_t> Credits;
  std::string From;

  bool operator==(const GoodsWishes&) const = default;
};

struct GoodsOutcome {
  std::shared_ptr<const TradeWorld> World;
  std::optional<TravelPlace> Start;
  std::vector<std::optional<TradeLeg>> Best;  // by good
  std::vector<int> Jumps;                     // of the ways of the best trades
  QString Error;                              // why there is no answer

  int CountOfTrades() const;
};

// All goods of a universe file, each with its best trade from the start.
GoodsOutcome SearchGoods(TradeWorlds& worlds, const std::filesystem::path& universe,
                         const GoodsWishes& wishes, Language language,
                         const BackgroundTask::IsCancelled& isCancelled);

// What a good is called.
QString NameOf(const TradedGood& good);

// A table of all goods, in the order of the market.
std::vector<TextId> GoodHeads();
inline constexpr int kGoodMinuteColumn = 8;
inline constexpr int kGoodFirstNumber = 3;
std::vector<std::vector<Cell>> RowsOf(const GoodsOutcome& outcome, Language language);

// A table of the places that sell or take a good. The profit is that of a unit bought at the start.
std::vector<TextId> OfferHeads();
inline constexpr int kOfferFirstNumber = 3;
std::vector<std::vector<Cell>> RowsOf(const GoodsOutcome& outcome, GoodIndex good,
                                      const std::vector<GoodOffer>& offers, Language language);

}  // namespace orrerix
