// SPDX-License-Identifier: MIT
#include "check/rules/text_numbers.h"

#include "check/game_fixture.h"
#include "demo/format/pe_writer.h"

namespace orrerix::check {
namespace {

// Numbers of the first library of the configuration start at 65536.
class TextNumberRules : public CheckedGameTest {
 protected:
  void SetUp() override {
    File("EXE/a.dll",
         ResourceLibraryImage({{1, "Laser"}, {2, "Falcon"}},
                              {{10, "<RDL><TEXT>Fine</TEXT></RDL>"}, {11, "<RDL><TEXT></RDL>"}}));
    Library("a.dll");
    Library("absent.dll");
  }
};

TEST_F(TextNumberRules, ANumberBelongsToALibrary) {
  // 131071 is the last of library 1, 196607 the last of library 2.
  Data("ships",
       "[Ship]\nnickname = a\nids_name = 196607\nids_info = 196608\n"
       "[Ship]\nnickname = b\nids_name = 4294967297\nids_info = -1\n");

  EXPECT_THAT(Found("text-library"),
              ElementsAre("ships:4 ids_info", "ships:7 ids_name", "ships:8 ids_info"));
}

TEST_F(TextNumberRules, ANameIsAStringOfItsLibrary) {
  Data("ships",
       "[Ship]\nnickname = a\nids_name = 65537\n[Ship]\nnickname = b\nids_name = 65539\n"
       "[Ship]\nnickname = c\nids_name = 0\n[Ship]\nnickname = d\nids_name = 131073\n");
  Data("universe", "[System]\nnickname = s\nstrid_name = 65546\n");
  Data("constants", "[Ship]\nids_name = 65539\n");

  EXPECT_THAT(Found("text-missing"), ElementsAre("ships:6 ids_name", "universe:3 strid_name"));
}

TEST_F(TextNumberRules, ACardIsACardOrAString) {
  Data("ships", "[Ship]\nnickname = a\nids_info = 65546\nids_info1 = 65537\nids_info2 = 65540\n");
  Data("mbases", R"(
[GF_NPC]
nickname = n
rumor = base_0_rank, mission_end, 2, 65540
rumor = base_0_rank, mission_end, 2, 65546
know = 65540, 65541, 100, 1
)");

  EXPECT_THAT(Found("card-missing"),
              ElementsAre("mbases:3 rumor", "mbases:5 know", "mbases:5 know", "ships:5 ids_info2"));
}

TEST_F(TextNumberRules, ACardWithBrokenMarkupIsFoundWhereItIsNamed) {
  Data("ships", "[Ship]\nnickname = a\nids_info = 65546\nids_info1 = 65547\nids_info2 = 65537\n");

  EXPECT_THAT(Found("card-malformed"), ElementsAre("ships:4 ids_info1"));
}

TEST_F(TextNumberRules, TheGamesOwnLibraryHasTheLowestNumbers) {
  Data("ships", "[Ship]\nnickname = a\nids_name = 5\n[Ship]\nnickname = b\nids_name = 6\n");
  EXPECT_THAT(Found("text-missing"), IsEmpty());

  File("EXE/Resources.dll", ResourceLibraryImage({{5, "Yes"}}, {}));
  EXPECT_THAT(Found("text-missing"), ElementsAre("ships:6 ids_name"));
}

class WithoutLibraries : public CheckedGameTest {};

TEST_F(WithoutLibraries, NothingIsSaidAboutNumbers) {
  Data("ships", "[Ship]\nnickname = a\nids_name = 196607\n");

  EXPECT_THAT(Found("text-library"), IsEmpty());
}

}  // namespace
}  // namespace orrerix::check
