// SPDX-License-Identifier: MIT
#include "space/space_fixture.h"

namespace orrerix {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;

struct Wanted {
  std::string_view Damage = {};
  std::string_view Flags = {};
  std::string_view Usage = {};
  std::string_view Faction = {};
  std::string_view Name = {};
};

class Zones : public SpaceFixture {
 protected:
  void AddZone(std::string_view nickname, Wanted wanted = {}, std::string_view size = "1000",
               const std::string& system = "Li01") {
    Section("zone",
            {{"nickname", nickname},
             {"pos", "20000, 500, -40000"},
             {"shape", "SPHERE"},
             {"size", size},
             {"rotate", ""},
             {"damage", wanted.Damage},
             {"property_flags", wanted.Flags},
             {"usage", wanted.Usage},
             {"faction", wanted.Faction},
             {"ids_name", wanted.Name}},
            system);
  }
  void AddField(std::string_view zone, std::string_view file = "solar\\asteroids\\rock.ini") {
    Section("asteroids", {{"file", file}, {"zone", zone}});
  }
};

// 20,000 east is a tenth of the square to the right of its middle, 40,000 north two tenths above.
TEST_F(Zones, StandInTheSquareOfTheirSystem) {
  AddZone("radiation", {.Damage = "200"});

  const Zone zone = Read().Zones.at(0);

  EXPECT_EQ(zone.Cell, (MapCell{3, 4}));
  EXPECT_THAT(zone.Middle.X, DoubleNear(0.6, 1e-9));
  EXPECT_THAT(zone.Middle.Y, DoubleNear(0.3, 1e-9));
  EXPECT_EQ(zone.Damage, 200);
  EXPECT_EQ(zone.Kinds, ZoneKinds{ZoneKind::Danger});
}

TEST_F(Zones, OfNoKindAreLeftOut) {
  AddZone("music_only");

  EXPECT_TRUE(Read().Zones.empty());
}

TEST_F(Zones, AreFieldsAndNebulasBySectionsThatNameThem) {
  AddZone("rocks");
  AddZone("mist");
  AddField("ROCKS");
  Section("nebula", {{"zone", "mist"}});

  const Space space = Read();

  EXPECT_EQ(space.Zones.at(0).Kinds, ZoneKinds{ZoneKind::Asteroids});
  EXPECT_EQ(space.Zones.at(1).Kinds, ZoneKinds{ZoneKind::Nebula});
}

TEST_F(Zones, WithLootInTheFieldsFileCanBeMined) {
  folder.Write("DATA/solar/asteroids/rock.ini",
               "[Field]\ncube_size = 700\n[LootableZone]\nasteroid_loot_commodity = c_gold ; x\n"
               "dynamic_loot_commodity = c_ore\n");
  Add("commodity", {{"nickname", "c_gold"}, {"realname", "Gold"}});
  AddZone("rocks");
  AddField("rocks");

  const Zone zone = Read().Zones.at(0);

  EXPECT_EQ(zone.Kinds, (ZoneKinds{ZoneKind::Asteroids, ZoneKind::Mining}));
  EXPECT_THAT(zone.Yields, ElementsAre("Gold", "c_ore"));
}

// 4128 is 4096, mines, and 32; 16466 has 16384, gas.
TEST_F(Zones, WithMinesOrGasAreDanger) {
  AddZone("mines", {.Flags = "4128"});
  AddZone("gas", {.Flags = "16466"});
  AddZone("nothing", {.Flags = "131072"});

  const Space space = Read();

  ASSERT_EQ(space.Zones.size(), 2u);
  EXPECT_TRUE(space.Zones[0].HasMines);
  EXPECT_TRUE(space.Zones[1].HasGas);
}

TEST_F(Zones, OfPathsNameWhoFliesThere) {
  Add("Groups", {{"NickName", "navy"}, {"Name", "The Navy"}});
  AddZone("path", {.Usage = "patrol", .Faction = "navy, 0.8"});
  AddZone("both", {.Usage = "trade, patrol", .Faction = ""});

  const Space space = Read();

  EXPECT_EQ(space.Zones.at(0).Kinds, ZoneKinds{ZoneKind::Patrol});
  EXPECT_THAT(space.Zones[0].Flyers, ElementsAre("The Navy"));
  EXPECT_EQ(space.Zones.at(1).Kinds, (ZoneKinds{ZoneKind::Patrol, ZoneKind::Trade}));
}

TEST_F(Zones, HaveTheGamesNames) {
  Name(77, "Pittsburgh Debris Field");
  AddZone("named", {.Damage = "1", .Name = "77"});

  EXPECT_EQ(Read().Zones.at(0).Name, "Pittsburgh Debris Field");
}

TEST_F(Zones, ComeWithTheLargerOnesFirst) {
  AddZone("small", {.Damage = "1"}, "100");
  AddZone("large", {.Damage = "1"}, "9000");

  EXPECT_EQ(Read().Zones.at(0).Nickname, "large");
}

TEST_F(Zones, ThatCannotBePlacedAreLeftOut) {
  AddZone("elsewhere", {.Damage = "1"}, "100", "Xx99");
  AddZone("flat", {.Damage = "1"}, "0");

  EXPECT_TRUE(Read().Zones.empty());
}

}  // namespace
}  // namespace orrerix
