// SPDX-License-Identifier: MIT
#include "diff/name_book.h"

#include <gtest/gtest.h>

#include "support/stored_tables.h"

namespace orrerix {
namespace {

NameBook BookOf(const std::vector<StoredTable>& universe) {
  NameBook book;
  book.Learn(universe);
  return book;
}

TEST(Names, AreFoundByNicknameWhateverItsCase) {
  const NameBook book = BookOf(
      {TableOf("Goods", {{"nickname", kText}, {"realname", kText}}, {{"commodity_gold", "Gold"}})});

  EXPECT_EQ(book.NameOf("COMMODITY_gold"), "Gold");
  EXPECT_EQ(book.NameOf("commodity_silver"), "");
}

TEST(Names, OfWhatHasANumberOnlyComeFromTheTexts) {
  const NameBook book =
      BookOf({TableOf("ids_name", {{"ID", FieldType::Long}, {"Name", FieldType::Memo}},
                      {{196609, "Harbour"}}),
              TableOf("base", {{"nickname", kText}, {"strid_name", kText}},
                      {{"hb_base", "196609"}, {"other_base", "7"}}),
              TableOf("gun", {{"nickname", kText}, {"ids_name", kText}}, {{"gun01", "196609"}})});

  EXPECT_EQ(book.NameOf("hb_base"), "Harbour");
  EXPECT_EQ(book.NameOf("gun01"), "Harbour");
  EXPECT_EQ(book.NameOf("other_base"), "");
}

TEST(Names, ThatStandInForMissingOnesDoNotCount) {
  const NameBook book = BookOf({TableOf("Goods", {{"nickname", kText}, {"realname", kText}},
                                        {{"pod", "Pod(0)"},
                                         {"a", "0 - 0"},
                                         {"b", "(12)"},
                                         {"c", "c"},
                                         {"d", ""},
                                         {"e", "e (big)"}})});

  for (const char* nickname : {"pod", "a", "b", "c", "d"}) EXPECT_EQ(book.NameOf(nickname), "");
  EXPECT_EQ(book.NameOf("e"), "e (big)");
}

TEST(Names, OfShipsAreThoseOfTheirPackagesToo) {
  const NameBook book =
      BookOf({TableOf("Ships", {{"NickName", kText}, {"RealName", kText}, {"packagename", kText}},
                      {{"li_fighter", "Patriot", "lf_package"}})});

  EXPECT_EQ(book.NameOf("li_fighter"), "Patriot");
  EXPECT_EQ(book.NameOf("lf_package"), "Patriot");
}

TEST(Names, LearntFirstCount) {
  const TableColumns columns = {{"nickname", kText}, {"realname", kText}};
  NameBook book = BookOf({TableOf("Goods", columns, {{"x", "New"}})});
  book.Learn({TableOf("Goods", columns, {{"x", "Old"}, {"y", "Gone"}})});

  EXPECT_EQ(book.NameOf("x"), "New");
  EXPECT_EQ(book.NameOf("y"), "Gone");
}

}  // namespace
}  // namespace orrerix
