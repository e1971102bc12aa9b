// SPDX-License-Identifier: MIT
#include "derived/system_grid.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

class SystemGridTest : public DerivedFixture {
 protected:
  SystemGrid Grid() { return SystemGrid(mustWork, universe); }
  // As one question, and as the grid has it.
  double ScaleAt(MapCell cell) {
    const double scale = SystemScale(mustWork, universe, cell);
    EXPECT_EQ(Grid().Scale(cell), scale);
    return scale;
  }
};

TEST_F(SystemGridTest, EveryCellTakesTwelveCharactersRowByRow) {
  System("li01", "1, 0");

  const std::string text = Grid().Text();

  EXPECT_EQ(text.size(), 12u * 18 * 19);
  EXPECT_EQ(text.substr(0, 36), "*          **LI01      **          *");
}

TEST_F(SystemGridTest, ASystemIsFoundWhateverTheCaseOfItsNickname) {
  System("Li01", "7, 4");

  EXPECT_EQ(Grid().FindCell("lI01"), (MapCell{7, 4}));
}

TEST_F(SystemGridTest, TheLastCellOfTheGridIsFound) {
  System("edge", "17, 18");

  EXPECT_EQ(Grid().FindCell("edge"), (MapCell{17, 18}));
}

TEST_F(SystemGridTest, OnlyTheFirstTenCharactersOfANicknameCount) {
  System("abcdefghijKLM", "3, 2");
  System("abcdefghijXYZ", "5, 6");

  SystemGrid grid = Grid();

  EXPECT_EQ(grid.FindCell("abcdefghij"), (MapCell{3, 2}));
  EXPECT_EQ(grid.FindCell("abcdefghijXYZ"), (MapCell{3, 2}));
}

TEST_F(SystemGridTest, AnUnknownSystemLiesInTheTopLeftCorner) {
  System("li01", "7, 4");

  EXPECT_EQ(Grid().FindCell("nowhere"), (MapCell{0, 0}));
}

TEST_F(SystemGridTest, AnEmptyNicknameLiesInTheTopLeftCorner) {
  System("li01", "7, 4");

  EXPECT_EQ(Grid().FindCell(""), (MapCell{0, 0}));
}

TEST_F(SystemGridTest, LettersBeyondAsciiCountAsOneCharacter) {
  System("größe", "2, 0");
  System("li01", "3, 0");

  SystemGrid grid = Grid();

  EXPECT_EQ(grid.FindCell("GRÖßE"), (MapCell{2, 0}));
  EXPECT_EQ(grid.FindCell("li01"), (MapCell{3, 0}));
}

TEST_F(SystemGridTest, AScaleAboveZeroIsTaken) {
  System("li01", "7, 4", "1.36");

  EXPECT_EQ(ScaleAt({7, 4}), 1.36);
}

TEST_F(SystemGridTest, ACellWithoutASystemHasAScaleOfOne) {
  EXPECT_EQ(ScaleAt({7, 4}), 1.0);
}

TEST_F(SystemGridTest, TheFirstSystemOfACellGivesItsScale) {
  System("li01", "7, 4", "1.5");
  System("li02", "7, 4", "3");

  EXPECT_EQ(ScaleAt({7, 4}), 1.5);
  EXPECT_EQ(Grid().FindCell("li02"), (MapCell{0, 0}));
}

TEST_F(SystemGridTest, AScaleOfZeroLeavesOne) {
  System("li01", "7, 4", "0");

  EXPECT_EQ(ScaleAt({7, 4}), 1.0);
}

TEST_F(SystemGridTest, AScaleThatIsMissingNegativeOrNoNumberLeavesOne) {
  System("a", "1, 1");
  System("b", "2, 2", "-2");
  System("c", "3, 3", "large");

  EXPECT_EQ(ScaleAt({1, 1}), 1.0);
  EXPECT_EQ(ScaleAt({2, 2}), 1.0);
  EXPECT_EQ(ScaleAt({3, 3}), 1.0);
}

TEST(ParsePosition, NumbersAreRoundedTiesToEven) {
  const ObjectPosition position = ParsePosition(" 2.5, -3.5 high, 1e3");

  EXPECT_EQ(position.X, 2);
  EXPECT_EQ(position.Height, -4);
  EXPECT_EQ(position.Z, 1000);
}

TEST(ParsePosition, AMissingCommaIsAFailure) {
  for (const char* pos : {"", "5", "5, 6"}) {
    try {
      ParsePosition(pos);
      ADD_FAILURE() << pos;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number, 5);
    }
  }
}

TEST(MapFraction, ZeroIsTheMiddleAtAnyScale) {
  EXPECT_EQ(MapFraction(0, 1), 0.5);
  EXPECT_EQ(MapFraction(0, 2.7), 0.5);
}

TEST(MapFraction, AFourthIsTakenOffBeforeTheScale) {
  // ((20000 * 3) / 4) * 2 = 30000; (30000 + 100000) / 200000 = 0.65
  EXPECT_DOUBLE_EQ(MapFraction(20000, 2), 0.65);
  // ((-100000 * 3) / 4) = -75000; 25000 / 200000 = 0.125
  EXPECT_DOUBLE_EQ(MapFraction(-100000, 1), 0.125);
}

TEST(MapFraction, AProductBeyondThirtyTwoBitsOverflows) {
  EXPECT_NO_THROW(MapFraction(715827882, 1));
  try {
    MapFraction(715827883, 1);
    ADD_FAILURE();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number, 6);
  }
}

}  // namespace
}  // namespace orrerix
