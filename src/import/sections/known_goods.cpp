// SPDX-License-Identifier: MIT
// Commodities, goods with the add-ons of ship packages, and markets.
#include <string_view>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "import/ini/ini_text.h"
#include "import/resources/resource_strings.h"
#include "import/sections/known_sections.h"
#include "import/sections/section_values.h"

namespace orrerix {

void KnownSections::ReadCommodity(BlockText& block) {
  routine_.AddNew(commodity_, RetryState::Commodity);
  AssignTexts(commodity_, block, {{"NICKNAME", "nickname"}});
  AssignNumbers(commodity_, block, {{"IDS_NAME", "ids_name"}, {"IDS_INFO", "ids_info"}});
  AssignRealName(commodity_, "ids_name");
  AssignNumbers(commodity_, block,
                {{"UNITS_PER_CONTAINER", "units_per_container"},
                 {"DECAY_PER_SECOND", "decay_per_second"},
                 {"VOLUME", "volume"}});
  commodity_.Update();
}

void KnownSections::ReadGood(BlockText& block) {
  const std::string category = TextOr(routine_, block, "CATEGORY");
  const std::string nickname = TextOr(routine_, block, "NICKNAME");
  const std::string hull = TextOr(routine_, block, "HULL");
  routine_.AddNew(goods_, RetryState::Goods);
  goods_["category"] = category;
  goods_["nickname"] = nickname;
  AssignTexts(goods_, block, {{"EQUIPMENT", "equipment"}, {"MSG_ID_PREFIX", "msg_id_prefix"}});
  AssignNumbers(goods_, block, {{"PRICE", "price"}});
  goods_["realname"] = [&] {
    return GetName(import_.Target, RequireLong(Val(block.Value("IDS_NAME"))), nickname);
  };
  AssignNumbers(goods_, block, {{"IDS_INFO", "ids_info"}});
  AssignTexts(goods_, block, {{"SHIP", "ship"}});
  goods_["hull"] = hull;
  AssignTexts(goods_, block, {{"FREE_AMMO", "free_ammo"}});
  routine_.Try([&] {
    if (Ucase(category) == "COMMODITY") {
      AssignCommodityName(nickname, TextValue(block, "EQUIPMENT"));
    }
  });
  goods_.Update();
  if (category == "ship" && !hull.empty()) ReadAddons(std::move(block), nickname);
}

void KnownSections::AssignCommodityName(const std::string& nickname, const std::string& equipment) {
  constexpr std::size_t prefix = std::string_view("commodity_").size();
  Recordset found = import_.Target.DB.OpenRowsNamed(routine_, "commodity", {"nickname", nickname});
  if (found.AtEnd()) {
    const std::string_view front = Left(equipment, prefix);
    goods_["realname"] = Trim(std::string_view(equipment).substr(front.size()));
  } else {
    goods_["realname"] = found["realname"];
  }
}

// The cut after an add-on counts two characters less than its usual line has, so that the end of
// the block may give one more row, without a nickname.
void KnownSections::ReadAddons(BlockText block, const std::string& package) {
  constexpr std::size_t shortestRest = 3;
  constexpr std::size_t keyAndSign = std::string_view("addon=").size();
  while (block.Size() > shortestRest) {
    routine_.AddNew(packages_, RetryState::Packages);
    const std::string_view value = block.Value("ADDON");
    block.Cut(block.Find("ADDON").value_or(0));
    packages_["PackageName"] = package;
    const CommaCut name = CutAtComma(value);
    packages_["NickName"] = [&] { return reader_.Utf8(Trim(name.Before)); };
    if (name.Found) {
      const CommaCut hardpoint = CutAtComma(name.After);
      packages_["HardPoint"] = [&] { return reader_.Utf8(Trim(hardpoint.Before)); };
      if (hardpoint.Found) packages_["Val"] = Val(hardpoint.After);
    }
    block.Cut(value.size() + keyAndSign);
    packages_.Update();
  }
}

void KnownSections::ReadBaseGood(BlockText& block) {
  constexpr std::string_view word = "MARKETGOOD";
  constexpr std::size_t keyAndSign = word.size() + 1;
  const std::string base = TextOr(routine_, block, "BASE");
  while (const auto place = block.Find(word)) {
    const std::string_view value = block.Value(word);
    block.Cut(*place);
    routine_.AddNew(baseGoods_, RetryState::BaseGoods);
    baseGoods_["Base"] = base;
    const CommaCut good = CutAtComma(value);
    baseGoods_["GoodNick"] = [&] { return reader_.Utf8(Trim(good.Before)); };
    std::string_view rest = good.After;
    for (const char* field : {"val1", "val2", "val3", "val4", "val5", "val6"}) {
      baseGoods_[field] = good.Found ? Val(rest) : 0.0;
      if (const CommaCut next = CutAtComma(rest); next.Found) rest = next.After;
    }
    routine_.Try([&] { routine_.SetCurrentLine(value); });
    block.Cut(value.size() + keyAndSign);
    baseGoods_.Update();
  }
}

}  // namespace orrerix
