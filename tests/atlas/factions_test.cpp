// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

class Factions : public AtlasFixture {
 protected:
  Factions() {
    System("Li01", "New York");
    Add("Groups", {{"NickName", "navy"}, {"Name", "Liberty Navy"}, {"SName", "Navy"}});
    Add("Groups", {{"NickName", "junkers"}, {"Name", "Junkers"}});
    Base("fort");
    Base("yard");
  }
  void Bribe(std::string_view base, std::string_view faction, int price) {
    Add("GF_NPC", {{"BaseNick", base}, {"bribe", faction}, {"bribe_2", price}});
  }
};

TEST_F(Factions, HaveBasesAndBribes) {
  Bribe("fort", "junkers", 5000);
  Bribe("FORT", "Junkers", 7000);
  Bribe("yard", "junkers", 9000);
  Bribe("nowhere", "junkers", 1);
  Bribe("fort", "", 2);

  ExpectFields(Atlas("factions")[0], {{"name", "Liberty Navy"},
                                      {"short_name", "Navy"},
                                      {"nickname", "navy"},
                                      {"bases", 2},
                                      {"base_names", "fort (New York); yard (New York)"},
                                      {"bribes", 0},
                                      {"bribe_price", {}},
                                      {"bribe_places", {}}});
  ExpectFields(Atlas("factions")[1], {{"name", "Junkers"},
                                      {"short_name", {}},
                                      {"bases", 0},
                                      {"bribes", 2},
                                      {"bribe_price", 5000},
                                      {"highest_bribe", 9000},
                                      {"bribe_places", "fort (New York); yard (New York)"}});
}

TEST_F(Factions, HaveNoNameWhereTheImportFoundNone) {
  Add("Groups", {{"NickName", "lost"}, {"Name", "(197510)"}, {"SName", "(197560)"}});
  Base("hideout", "Li01", "lost");

  ExpectFields(Atlas("factions")[2], {{"name", {}}, {"short_name", {}}, {"nickname", "lost"}});
  ExpectFields(Atlas("bases")[2], {{"owner", "lost"}});
}

TEST_F(Factions, AreBribedOnceABase) {
  Bribe("fort", "junkers", 7000);
  Bribe("yard", "junkers", 0);
  Bribe("FORT", "JUNKERS", 5000);

  ASSERT_EQ(Atlas("bribes").size(), 2u);
  ExpectFields(Atlas("bribes")[0], {{"faction", "Junkers"},
                                    {"faction_nickname", "junkers"},
                                    {"base", "fort"},
                                    {"base_nickname", "fort"},
                                    {"system", "New York"},
                                    {"owner", "Liberty Navy"},
                                    {"givers", 2},
                                    {"price", 5000},
                                    {"highest_price", 7000}});
  ExpectFields(Atlas("bribes")[1], {{"givers", 1}, {"price", {}}});
}

}  // namespace
}  // namespace orrerix
