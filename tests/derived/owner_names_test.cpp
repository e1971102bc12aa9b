// SPDX-License-Identifier: MIT
#include "derived/owner_names.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class OwnerNames : public DerivedFixture {
 protected:
  void Group(std::string_view nickname, const Value& name, const Value& shortName,
             const Value& info) {
    Add("Groups", {{"NickName", nickname},
                   {"ids_name", name},
                   {"ids_short_name", shortName},
                   {"ids_info", info}});
  }
};

TEST_F(OwnerNames, EveryFactionGetsBothItsNames) {
  Name(65537, "The Lamplighters");
  Name(65538, "Lamps");
  Group("lamp_grp", 65537, 65538, 0);

  CalcOwnerNames(universe);

  EXPECT_THAT(Column("Groups", "Name"), ElementsAre("The Lamplighters"));
  EXPECT_THAT(Column("Groups", "SName"), ElementsAre("Lamps"));
}

TEST_F(OwnerNames, ANumberWithoutAStringStandsInBrackets) {
  Group("lamp_grp", 7, 8, 0);

  CalcOwnerNames(universe);

  EXPECT_THAT(Column("Groups", "Name"), ElementsAre("(7)"));
  EXPECT_THAT(Column("Groups", "SName"), ElementsAre("(8)"));
}

TEST_F(OwnerNames, ANumberThatIsNullIsAFailureOfItsStatementOnly) {
  Name(65538, "Lamps");
  Group("lamp_grp", Value(), 65538, 0);

  CalcOwnerNames(universe);

  EXPECT_THAT(FailureNumbers(), ElementsAre(94));
  EXPECT_EQ(log.Failures().front().Info, "While Calculating OwnerNames");
  EXPECT_THAT(Column("Groups", "SName"), ElementsAre("Lamps"));
}

TEST_F(OwnerNames, TheLookupsReadTheNumbersAnew) {
  Name(65537, "The Lamplighters");
  Name(65538, "Lamps");
  Add("ids_info", {{"ID", 65539}, {"Info", "They keep the lanes lit."}, {"DLL", "x"}});
  Group("lamp_grp", 65537, 65538, 65539);

  EXPECT_EQ(GetOwnerName(universe, "LAMP_grp"), "The Lamplighters");
  EXPECT_EQ(GetOwnerShortName(universe, "lamp_grp"), "Lamps");
  EXPECT_EQ(GetOwnerInfo(universe, "lamp_grp"), "They keep the lanes lit.");
}

TEST_F(OwnerNames, AnUnknownFactionIsShownAsSuch) {
  EXPECT_EQ(GetOwnerName(universe, "ghost"), "Name-ID: ghost");
  EXPECT_EQ(GetOwnerShortName(universe, "ghost"), "Short-Name-ID: ghost");
  EXPECT_EQ(GetOwnerInfo(universe, "ghost"), "Info-ID: ghost");
}

TEST_F(OwnerNames, AnEmptyNicknameGivesTheWordsAlone) {
  EXPECT_EQ(GetOwnerName(universe, ""), "Name-ID: ");
}

TEST_F(OwnerNames, AQuoteInANicknameIsAFailureAndGivesTheWords) {
  EXPECT_EQ(GetOwnerName(universe, "o'grp"), "Name-ID: o'grp");
  EXPECT_THAT(FailureNumbers(), ElementsAre(3075));
  EXPECT_EQ(log.Failures().front().Info, "While getting OwnerName for o'grp");
}

}  // namespace
}  // namespace orrerix
