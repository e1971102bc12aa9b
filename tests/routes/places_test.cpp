// SPDX-License-Identifier: MIT
#include "routes/places.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Places : public TravelFixture {
 protected:
  Places() {
    System("hb");
    Dock("pier", "hb", "0, 0, 0");
    Object("wreck", "hb", "0, 0, 100", {{"realname", "Old Wreck"}});
  }
  std::vector<std::string> Nicknames(std::string_view name) {
    std::vector<std::string> nicknames;
    for (const NodeIndex node : PlaceOfWay(Graph(), name).Nodes) {
      nicknames.push_back(Graph().Objects[node].Nickname);
    }
    return nicknames;
  }
};

TEST_F(Places, ThatAreNoDocksAreFoundByNameAfterEverythingElse) {
  EXPECT_THAT(Nicknames("old wreck"), ElementsAre("wreck"));
  EXPECT_FALSE(PlaceOfWay(Graph(), "Old Wreck").AreDocks);
  EXPECT_THAT(Nicknames("hb"), ElementsAre("pier"));
  EXPECT_THAT(Nicknames(""), IsEmpty());
  EXPECT_THAT(DocksOfTrade(Graph(), "Old Wreck"), IsEmpty());
}

TEST_F(Places, AreTakenAsASearchPrintsThem) {
  EXPECT_THAT(Nicknames("pier\tsome name"), ElementsAre("pier"));
  EXPECT_THAT(Nicknames("nowhere\tpier"), IsEmpty());
}

TEST_F(Places, SystemsAreCalledByNicknameOrName) {
  Add("Systems", {{"nickname", "ku"}, {"realname", "Kusari"}, {"pos", "2, 2"}});
  Add("Systems", {{"nickname", "bw"}, {"realname", "ku"}, {"pos", "3, 3"}});
  Dock("port", "ku", "0, 0, 0");
  Dock("wharf", "bw", "0, 0, 0");
  const auto called = [&](std::string_view name) {
    std::vector<std::string> nicknames;
    for (const SystemIndex system : SystemsCalled(Graph(), name)) {
      nicknames.push_back(Graph().Systems[system].Nickname);
    }
    return nicknames;
  };

  EXPECT_THAT(called("KU"), ElementsAre("ku"));
  EXPECT_THAT(called("kusari"), ElementsAre("ku"));
  EXPECT_THAT(called("hb\tHarbour"), ElementsAre("hb"));
  EXPECT_THAT(called("nowhere"), IsEmpty());
}

}  // namespace
}  // namespace orrerix
