// SPDX-License-Identifier: MIT
// Which base sells what.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "atlas/places.h"

namespace orrerix {

// The bases that sell a good, by their places in the book of bases.
using Sellers = std::vector<std::size_t>;

// What the markets of bases sell: lines of table BaseGoods whose fifth number is 0, at bases that a
// ship can dock at.
class SalesBook {
 public:
  SalesBook(const SourceTables& tables, const BaseBook& bases);

  // None for a good that nobody sells.
  const Sellers& SellersOf(std::string_view good) const;

  // The bases that sell any of several goods, each once.
  Sellers SellersOfAny(const std::vector<std::string>& goods) const;

 private:
  std::unordered_map<std::string, Sellers> sellers_;  // by good
};

// The labels of bases with "; " between them.
std::string LabelsOf(const BaseBook& bases, const Sellers& sellers);

// What the tables of the atlas are made of.
class AtlasSource {
 public:
  AtlasSource(FailureSink& sink, const Database& universe);

  const SourceTables Tables;
  const BaseBook Bases;
  const SalesBook Sales;
};

}  // namespace orrerix
