// SPDX-License-Identifier: MIT
#include "demo/format/ini_text.h"

#include <gtest/gtest.h>

#include "demo/format/info_card.h"

namespace orrerix::demo {
namespace {

TEST(IniText, WritesSectionsWithCrLfInTheGamesCodePage) {
  IniText ini;
  ini.Section("Object").Line("name", "Häll").Line("size", 5).Section("zone").Line("edge", 0.5);

  EXPECT_EQ(ini.Bytes(), "[Object]\r\nname = H\xE4ll\r\nsize = 5\r\n\r\n[zone]\r\nedge = 0.5\r\n");
}

TEST(IniText, DecimalsLoseTheirTrailingZeros) {
  EXPECT_EQ(Decimal(1.50), "1.5");
  EXPECT_EQ(Decimal(300), "300");
  EXPECT_EQ(Decimal(-0.0001), "0");
  EXPECT_EQ(Decimal(2.005, 2), "2");  // 2.005 is a little less in binary
  EXPECT_EQ(Decimal(10, 0), "10");
}

TEST(InfoCard, HoldsOneParagraphAnEntryAndEscapesMarkup) {
  const std::string card = InfoCard("A<B", {"one", "two"});

  EXPECT_EQ(
      card,
      "<?xml version=\"1.0\" encoding=\"UTF-16\"?><RDL><PUSH/>"
      "<TRA data=\"1\" mask=\"1\" def=\"-2\"/><JUST loc=\"center\"/><TEXT>A&lt;B</TEXT><PARA/>"
      "<TRA data=\"0\" mask=\"1\" def=\"-1\"/><JUST loc=\"left\"/>"
      "<TEXT>one</TEXT><PARA/><TEXT>two</TEXT><PARA/><POP/></RDL>");
}

}  // namespace
}  // namespace orrerix::demo
