// SPDX-License-Identifier: MIT
#include "atlas/sales.h"

#include <algorithm>

#include "db/values/text.h"

namespace orrerix {

SalesBook::SalesBook(const SourceTables& tables, const BaseBook& bases) {
  const SourceTable& lines = tables["BaseGoods"];
  for (std::size_t i = 0; i < lines.RowCount(); ++i) {
    const SourceRow line = lines.Row(i);
    if (line.Number("val5") != 0.0) continue;
    if (const auto base = bases.Find(line.Text("Base"))) {
      sellers_[FoldAscii(line.Text("GoodNick"))].push_back(*base);
    }
  }
}

const Sellers& SalesBook::SellersOf(std::string_view good) const {
  static const Sellers kNobody;
  const auto found = sellers_.find(FoldAscii(Trim(good)));
  return found == sellers_.end() || good.empty() ? kNobody : found->second;
}

Sellers SalesBook::SellersOfAny(const std::vector<std::string>& goods) const {
  Sellers all;
  for (const std::string& good : goods) {
    for (const std::size_t base : SellersOf(good)) {
      if (std::find(all.begin(), all.end(), base) == all.end()) all.push_back(base);
    }
  }
  return all;
}

std::string LabelsOf(const BaseBook& bases, const Sellers& sellers) {
  std::string labels;
  for (const std::size_t base : sellers) {
    if (!labels.empty()) labels += "; ";
    labels += bases.Bases()[base].Label();
  }
  return labels;
}

AtlasSource::AtlasSource(FailureSink& sink, const Database& universe)
    : Tables(sink, universe), Bases(Tables), Sales(Tables, Bases) {}

}  // namespace orrerix
