// SPDX-License-Identifier: MIT
#include "derived/dock_objects.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DockObjects : public DerivedFixture {
 protected:
  DockObjects() { System("li01", "7, 4"); }
  void Calculate() { CalcDockObjects(universe, host); }
};

TEST_F(DockObjects, AnObjectThatDocksWithABaseIsListedWithItsPlace) {
  Object("li01_05", {.Pos = "20000, 300, -100000",
                     .DockWith = "li01_05_base",
                     .Loadout = "space_police_li",
                     .Reputation = "li_p_grp",
                     .RealName = "Watch House"});

  Calculate();

  Row row = Rows("DockObjects").at(0);
  EXPECT_EQ(row["nickname"], Value("li01_05"));
  EXPECT_EQ(row["realname"], Value("Watch House"));
  EXPECT_EQ(row["loadout"], Value("space_police_li"));
  EXPECT_EQ(row["owner"], Value("li_p_grp"));
  EXPECT_EQ(row["MapX"], Value(7));
  EXPECT_EQ(row["MapY"], Value(4));
  EXPECT_DOUBLE_EQ(row["PosX"].Number(), 0.575);
  EXPECT_DOUBLE_EQ(row["PosY"].Number(), 0.125);
}

TEST_F(DockObjects, TheHeightComesLast) {
  Object("a", {.Pos = "1, 2, 3", .DockWith = "base"});

  Calculate();

  Row row = Rows("DockObjects").at(0);
  EXPECT_EQ(row["abs_x"], Value(1));
  EXPECT_EQ(row["abs_y"], Value(3));
  EXPECT_EQ(row["abs_z"], Value(2));
}

TEST_F(DockObjects, DockingFixturesAndUndockableObjectsAreLeftOut) {
  Object("li01_Docking_Fixture_1", {.DockWith = "base"});
  Object("sun", {});
  Object("dock", {.DockWith = "base"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "nickname"), ElementsAre("dock"));
}

TEST_F(DockObjects, ASecretLoadoutIsListedWithoutABase) {
  Object("wreck", {.Loadout = "SECRET_hulk", .RealName = "Old Hulk"});
  Object("wreck2", {.Loadout = "secret_hulk"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "nickname"), ElementsAre("wreck", "wreck2"));
  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Old Hulk", ""));
}

TEST_F(DockObjects, ARingIsNamedAfterThePlanetOfItsBaseInBothTables) {
  Object("li01_01", {.DockWith = "", .RealName = "Planet Hearth"});
  Object("ring", {.DockWith = "Li01_01_Base", .Loadout = "docking_ring_li", .RealName = "Ring"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Dockring: Planet Hearth"));
  EXPECT_THAT(Column("Objects", "realname"),
              ElementsAre("Planet Hearth", "Dockring: Planet Hearth"));
}

TEST_F(DockObjects, ARingWithAShortBaseNameAsksForTheWholeOfIt) {
  Object("ab", {.RealName = "Planet Ab"});
  Object("ring", {.DockWith = "ab", .Loadout = "docking_ring"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Dockring: Planet Ab"));
}

TEST_F(DockObjects, ARingFindsAnObjectNamedLikeItsWholeBase) {
  Object("li01_01_base", {.RealName = "Planet Base"});
  Object("ring", {.DockWith = "li01_01_base", .Loadout = "docking_ring"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Dockring: Planet Base"));
}

TEST_F(DockObjects, ARingOfAPlanetWithoutANameIsCalledDockringAlone) {
  Object("li01_01", {});
  Object("ring", {.DockWith = "li01_01_base", .Loadout = "docking_ring", .RealName = "x"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Dockring: "));
}

TEST_F(DockObjects, ARingWithoutAPlanetKeepsItsName) {
  Object("ring", {.DockWith = "li09_01_base", .Loadout = "docking_ring", .RealName = "Lone"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Lone"));
}

TEST_F(DockObjects, OnlyALowerCaseLoadoutMakesARing) {
  Object("li01_01", {.RealName = "Planet Hearth"});
  Object("ring", {.DockWith = "li01_01_base", .Loadout = "Docking_Ring", .RealName = "Own"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "realname"), ElementsAre("Own"));
}

TEST_F(DockObjects, AnObjectOfAnUnknownSystemLiesInTheTopLeftCorner) {
  Object("a", {.System = "", .DockWith = "base"});

  Calculate();

  Row row = Rows("DockObjects").at(0);
  EXPECT_EQ(row["MapX"], Value(0));
  EXPECT_EQ(row["MapY"], Value(0));
  EXPECT_EQ(row["PosX"].Number(), 0.5);
}

TEST_F(DockObjects, SeveralObjectsOfOneBaseAreSeveralRowsInTheirOrder) {
  Object("z", {.DockWith = "base"});
  Object("a", {.DockWith = "base"});

  Calculate();

  EXPECT_THAT(Column("DockObjects", "nickname"), ElementsAre("z", "a"));
}

TEST_F(DockObjects, APositionWithoutACommaIsAFailureAndCountsAsTheMiddle) {
  Object("a", {.Pos = "5", .DockWith = "base"});

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_EQ(log.Failures().front().Info, "While calculating dockable objects");
  EXPECT_EQ(Rows("DockObjects").at(0)["abs_x"], Value(0));
}

TEST_F(DockObjects, AnEmptyUniverseGivesAnEmptyTable) {
  Calculate();

  EXPECT_THAT(Rows("DockObjects"), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

}  // namespace
}  // namespace orrerix
