// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "import/sections/known_sections.h"
#include "support/known_section_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST_F(KnownSection, AGoodTakesAllItsFields) {
  Name(7, "Laser");
  Read(R"([Good]
nickname = gun01
category = equipment
equipment = li_gun01
msg_id_prefix = gcs_gun
price = 300 ; a bargain
ids_name = 7
ids_info = 8
ship = a_ship
hull = a_hull
free_ammo = mine_ammo, 10
)");

  const Row row = TheRow("Goods");
  EXPECT_EQ(row.at("nickname"), "gun01");
  EXPECT_EQ(row.at("category"), "equipment");
  EXPECT_EQ(row.at("equipment"), "li_gun01");
  EXPECT_EQ(row.at("msg_id_prefix"), "gcs_gun");
  EXPECT_EQ(row.at("price"), 300);
  EXPECT_EQ(row.at("realname"), "Laser");
  EXPECT_EQ(row.at("ids_info"), 8);
  EXPECT_EQ(row.at("ship"), "a_ship");
  EXPECT_EQ(row.at("hull"), "a_hull");
  EXPECT_EQ(row.at("free_ammo"), "mine_ammo, 10");
  EXPECT_THAT(Rows("Packages"), IsEmpty());
}

TEST_F(KnownSection, GoodsOfOneNicknameMayDifferInCategory) {
  Read(R"([Good]
nickname = fox
category = equipment
[Good]
nickname = Fox
category = shiphull
[Good]
nickname = FOX
category = Equipment
)");

  EXPECT_THAT(Column("Goods", "category"), ElementsAre("equipment", "shiphull"));
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(KnownSection, ACommodityGoodBearsTheNameOfItsCommodity) {
  Add("commodity", {{"nickname", "Commodity_Gold"}, {"realname", "Gold"}});
  Read(R"([Good]
nickname = commodity_gold
category = Commodity
equipment = commodity_gold
)");

  EXPECT_EQ(TheRow("Goods").at("realname"), "Gold");
}

TEST_F(KnownSection, ACommodityGoodWithoutACommodityIsNamedByItsEquipment) {
  Read(R"([Good]
nickname = commodity_gold
category = commodity
equipment = commodity_ gold ore
[Good]
nickname = commodity_tin
category = commodity
equipment = short
)");

  EXPECT_THAT(Column("Goods", "realname"), ElementsAre("gold ore", ""));
}

TEST_F(KnownSection, ANicknameWithAQuoteBreaksTheLookupOfItsCommodity) {
  Read("[Good]\nnickname = bob's\ncategory = commodity\nequipment = commodity_bob\n");

  // The query of the name's lookup is no statement; after that the commodity is not found.
  EXPECT_EQ(TheRow("Goods").at("realname"), "bob");
  EXPECT_THAT(FailureNumbers(), ElementsAre(3075));
}

TEST_F(KnownSection, APackageHasARowForEachAddon) {
  Read(R"([Good]
nickname = fox_package
category = ship
hull = fox_hull
addon = engine, internal, 1
addon = gun, HpWeapon01, 2.6
[end]
)");

  const auto rows = Rows("Packages");
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("PackageName"), "fox_package");
  EXPECT_EQ(rows[0].at("NickName"), "engine");
  EXPECT_EQ(rows[0].at("HardPoint"), "internal");
  EXPECT_EQ(rows[0].at("Val"), 1);
  EXPECT_EQ(rows[1].at("NickName"), "gun");
  EXPECT_EQ(rows[1].at("HardPoint"), "HpWeapon01");
  EXPECT_EQ(rows[1].at("Val"), 3);
  EXPECT_EQ(TheRow("Goods").at("nickname"), "fox_package");
}

TEST_F(KnownSection, AddonsWithFewerPartsLeaveTheOthersNull) {
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = one
addon = two ,  hp
[end]
)");

  const auto rows = Rows("Packages");
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("NickName"), "one");
  EXPECT_TRUE(rows[0].at("HardPoint").IsNull());
  EXPECT_TRUE(rows[0].at("Val").IsNull());
  EXPECT_EQ(rows[1].at("NickName"), "two");
  EXPECT_EQ(rows[1].at("HardPoint"), "hp");
  EXPECT_TRUE(rows[1].at("Val").IsNull());
}

TEST_F(KnownSection, WhatFollowsTheLastAddonGivesNamelessRowsOfSixCharacters) {
  // After the last value two characters of it are left, then CR LF, "price = 5", CR LF: 15. The
  // rounds begin at 15, 9 and end at 3, which is not more than 3.
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = abcd, e, 1
price = 5
)");

  EXPECT_THAT(Column("Packages", "NickName"), ElementsAre("abcd", "", ""));
  EXPECT_EQ(Rows("Packages")[1].at("PackageName"), "p");
  EXPECT_TRUE(Rows("Packages")[1].at("HardPoint").IsNull());
  EXPECT_TRUE(Rows("Packages")[1].at("Val").IsNull());
}

TEST_F(KnownSection, TheEndOfAPackageMayGiveOneNamelessRow) {
  // Two characters of the value, CR LF and, of an empty line, the CR (the character before the
  // next header is lost): 5, which are more than 3. Without the empty line there would be 3.
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = abcd, e, 1

[Good]
nickname = q
category = other
)");

  EXPECT_THAT(Column("Packages", "NickName"), ElementsAre("abcd", ""));
}

TEST_F(KnownSection, OnlyTheExactCategoryShipMakesAPackage) {
  Read(R"([Good]
nickname = a
category = Ship
hull = h
addon = x, y, 1
[Good]
nickname = b
category = ship
addon = x, y, 1
)");

  EXPECT_THAT(Rows("Packages"), IsEmpty());
  EXPECT_THAT(Rows("Goods"), SizeIs(2));
}

TEST_F(KnownSection, ABaseSellsEachMarketGood) {
  Read(R"([BaseGood]
base = Li01_01_Base
MarketGood = commodity_gold, 0, -1, 150, 500, 0, 0.8
marketgood = commodity_tin,1,2,3
MarketGood = scanner
)");

  const auto rows = Rows("BaseGoods");
  ASSERT_THAT(rows, SizeIs(3));
  EXPECT_EQ(rows[0].at("Base"), "Li01_01_Base");
  EXPECT_EQ(rows[0].at("GoodNick"), "commodity_gold");
  EXPECT_EQ(rows[0].at("val1"), 0.0);
  EXPECT_EQ(rows[0].at("val2"), -1.0);
  EXPECT_EQ(rows[0].at("val3"), 150.0);
  EXPECT_EQ(rows[0].at("val4"), 500.0);
  EXPECT_EQ(rows[0].at("val5"), 0.0);
  EXPECT_EQ(rows[0].at("val6"), 0.8);
  // Too few numbers: the last one repeats.
  EXPECT_EQ(rows[1].at("val1"), 1.0);
  EXPECT_EQ(rows[1].at("val3"), 3.0);
  EXPECT_EQ(rows[1].at("val6"), 3.0);
  EXPECT_EQ(rows[2].at("GoodNick"), "scanner");
  EXPECT_EQ(rows[2].at("val1"), 0.0);
  EXPECT_EQ(rows[2].at("val6"), 0.0);
}

TEST_F(KnownSection, ADoubledMarketGoodIsLoggedWithItsLine) {
  Read(R"([BaseGood]
base = b
MarketGood = fox, 1, 1
MarketGood = Fox, 2, 2
MarketGood = hound, 3, 3
)");

  EXPECT_THAT(Column("BaseGoods", "GoodNick"), ElementsAre("fox", "hound"));
  EXPECT_THAT(DataLog(), ElementsAre("#--- Error in FL-MOD-File:\r\n" + Path("\\data\\test.ini") +
                                     "\r\nCant add to Database (cause of allready exist):\r\n"
                                     "[BaseGood]\r\nbase = b\n-> Fox, 2, 2\r\n---."));
}

}  // namespace
}  // namespace orrerix
