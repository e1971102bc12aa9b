// SPDX-License-Identifier: MIT
#include "check/rules/good_rules.h"

#include <map>
#include <set>

#include <fmt/format.h>

#include "check/model/numbers.h"

namespace orrerix::check {
namespace {

// The value in a market's line that says how many of a good it has at most.
constexpr std::size_t kStockValue = 5;

class GoodRules {
 public:
  GoodRules(const CheckedGame& game, Findings& findings) : game_(game), findings_(findings) {}

  void Check() {
    ReadMarkets();
    for (const IniSection* good : game_.Known.All(Kind::Good)) {
      CheckParts(*good);
      CheckPrice(*good);
    }
    CheckMounts();
  }

 private:
  const IniEntry* First(const IniSection& section, std::string_view key) const {
    return section.First(game_.Files.Names().Find(key));
  }

  std::string FirstValue(const IniSection& section, std::string_view key) const {
    const IniEntry* entry = First(section, key);
    return entry == nullptr ? std::string() : FoldName(entry->At(1));
  }

  // Notes what is on sale and finds what a base lists twice.
  void ReadMarkets() {
    const NameId baseGood = game_.Files.Names().Find("BaseGood");
    const NameId marketGood = game_.Files.Names().Find("MarketGood");
    for (const IniFile* file : game_.Files.InisWith({Role::Markets})) {
      for (const IniSection& section : file->Sections()) {
        if (section.Id != baseGood) continue;
        for (const IniEntry& entry : section.Entries) {
          if (entry.Name == marketGood) ReadMarketLine(section, entry);
        }
      }
    }
  }

  void ReadMarketLine(const IniSection& section, const IniEntry& entry) {
    const std::string good = FoldName(entry.At(1));
    if (good.empty()) return;
    if (ParseNumber(entry.At(kStockValue)).value_or(0) > 0) onSale_.insert(good);
    const std::string base = FoldName(section.Nickname());
    if (base.empty()) return;
    const FilePlace place = PlaceOf(AtEntry(section, entry));
    const auto [first, isNew] = listed_.emplace(std::pair(base, good), place);
    if (isNew) return;
    findings_.Add(Rule::MarketDuplicate, AtEntry(section, entry),
                  fmt::format("{} is listed for {} before, at {}:{}", entry.At(1),
                              section.Nickname(), first->second.File, first->second.Line),
                  {first->second});
  }

  void CheckParts(const IniSection& good) {
    const IniEntry* category = First(good, "category");
    const std::string kind = FirstValue(good, "category");
    if (kind == "equipment" || kind == "commodity") {
      Require(good, kind, "equipment");
    } else if (kind == "ship") {
      Require(good, kind, "hull");
      CheckHull(good);
    } else if (kind == "shiphull") {
      Require(good, kind, "ship");
    } else {
      findings_.Add(
          Rule::GoodPart, AtEntryOrHeader(good, category),
          fmt::format("the category is none of equipment, commodity, ship and shiphull: {}",
                      category == nullptr ? std::string_view() : category->At(1)));
    }
  }

  void Require(const IniSection& good, std::string_view category, std::string_view key) {
    const IniEntry* entry = First(good, key);
    if (entry != nullptr && !entry->At(1).empty()) return;
    findings_.Add(
        Rule::GoodPart, AtEntryOrHeader(good, entry),
        fmt::format("a good of category {} needs {}: {}", category, key, good.Nickname()));
  }

  void CheckHull(const IniSection& good) {
    const IniEntry* entry = First(good, "hull");
    const IniSection* hull =
        entry == nullptr ? nullptr : game_.Known.Find(Kind::Good, entry->At(1));
    if (hull == nullptr || FirstValue(*hull, "category") == "shiphull") return;
    findings_.Add(Rule::GoodPart, AtEntry(good, *entry),
                  fmt::format("the hull is no good of category shiphull: {}", entry->At(1)));
  }

  void CheckPrice(const IniSection& good) {
    const std::string kind = FirstValue(good, "category");
    if (kind != "equipment" && kind != "commodity" && kind != "shiphull") return;
    const IniEntry* price = First(good, "price");
    if (price == nullptr) {
      findings_.Add(Rule::PriceMissing, AtHeader(good),
                    fmt::format("the good has no price: {}", good.Nickname()));
    } else if (ParseNumber(price->At(1)) == 0.0 && onSale_.contains(FoldName(good.Nickname()))) {
      findings_.Add(Rule::PriceMissing, AtEntry(good, *price),
                    fmt::format("the good is on sale for nothing: {}", price->Value));
    }
  }

  void CheckMounts() {
    if (!game_.Known.IsComplete(Kind::Equipment) || !game_.Known.IsComplete(Kind::Ship)) return;
    std::set<std::string> mountable;
    const NameId hpType = game_.Files.Names().Find("hp_type");
    for (const IniSection* ship : game_.Known.All(Kind::Ship)) {
      for (const IniEntry& entry : ship->Entries) {
        if (entry.Name == hpType) mountable.insert(FoldName(entry.At(1)));
      }
    }
    std::set<std::string> sold;
    for (const IniSection* good : game_.Known.All(Kind::Good)) {
      if (onSale_.contains(FoldName(good->Nickname()))) sold.insert(FirstValue(*good, "equipment"));
    }
    for (const IniSection* item : game_.Known.All(Kind::Equipment)) {
      const IniEntry* type = MountTypeOf(*item);
      if (type == nullptr || type->At(1).empty() || !sold.contains(FoldName(item->Nickname())) ||
          mountable.contains(FoldName(type->At(1)))) {
        continue;
      }
      findings_.Add(Rule::MountImpossible, AtEntry(*item, *type),
                    fmt::format("no ship has a hardpoint of this type: {}", type->At(1)));
    }
  }

  // The line with the type of hardpoint that an item needs; null if it needs none.
  const IniEntry* MountTypeOf(const IniSection& item) const {
    const std::string& name = game_.Files.Names().Text(item.Id);
    if (name == "gun") return First(item, "hp_gun_type");
    return name == "shieldgenerator" ? First(item, "hp_type") : nullptr;
  }

  const CheckedGame& game_;
  Findings& findings_;
  std::set<std::string> onSale_;                                     // goods in lower case
  std::map<std::pair<std::string, std::string>, FilePlace> listed_;  // base and good
};

}  // namespace

void CheckGoods(const CheckedGame& game, Findings& findings) {
  GoodRules(game, findings).Check();
}

}  // namespace orrerix::check
