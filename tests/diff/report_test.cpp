// SPDX-License-Identifier: MIT
#include "diff/report.h"

#include <gmock/gmock.h>

#include "support/stored_tables.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

const TableColumns kGoods = {{"nickname", kText}, {"realname", kText}, {"price", kLong}};
const TableColumns kMarket = {{"Base", kText}, {"GoodNick", kText}, {"val5", FieldType::Double}};
const TableColumns kPrices = {{"SysNick", kText},
                              {"BaseNick", kText},
                              {"GoodNick", kText},
                              {"Price", kLong},
                              {"Sell", FieldType::Byte}};

Report ReportOf(const std::vector<StoredTable>& old, const std::vector<StoredTable>& now) {
  NameBook names;
  names.Learn(now);
  names.Learn(old);
  return MakeReport(CompareUniverses(old, now), names, "old.fl", "new.fl");
}

// One good gets dearer, one comes, one goes.
Report SmallReport() {
  return ReportOf({TableOf("Goods", kGoods, {{"gold", "Gold", 100}, {"oil", "Oil", 5}})},
                  {TableOf("Goods", kGoods, {{"gold", "Gold", 120}, {"tea", "Tea | <hot>", 7}})});
}

TEST(AReport, NamesThingsAndTellsOldAndNew) {
  const Report report = SmallReport();

  ASSERT_THAT(report.Sections, SizeIs(1));
  const ReportSection& goods = report.Sections[0];
  ASSERT_THAT(goods.Changed, SizeIs(1));
  EXPECT_EQ(goods.Changed[0].Things[0].Name, "Gold");
  EXPECT_EQ(goods.Changed[0].Things[0].Nickname, "gold");
  EXPECT_EQ(goods.Changed[0].Fields[0].Column, "price");
  EXPECT_EQ(goods.Changed[0].Fields[0].Old, "100");
  EXPECT_EQ(goods.Changed[0].Fields[0].New, "120");
  EXPECT_EQ(SummaryOf(report), "1 row added, 1 removed, 1 changed");
}

TEST(AReport, SaysWhatABaseSellsNoMore) {
  const StoredTable goods = TableOf("Goods", kGoods, {{"gun", "Big Gun", 9}, {"oil", "Oil", 5}});
  const StoredTable systems =
      TableOf("Systems", {{"nickname", kText}, {"realname", kText}}, {{"hb", "Harbour System"}});
  const Report report = ReportOf(
      {goods, systems, TableOf("BaseGoods", kMarket, {{"pier", "gun", 0.0}, {"pier", "oil", 1.0}}),
       TableOf("BaseGoodPrices", kPrices, {{"hb", "quay", "oil", 5, 1}})},
      {goods, systems, TableOf("BaseGoods", kMarket, {{"quay", "gun", 0.0}}),
       TableOf("BaseGoodPrices", kPrices, {{"hb", "quay", "oil", 6, 2}})});

  ASSERT_THAT(report.Sections, SizeIs(2));
  EXPECT_EQ(report.Sections[0].Changed[0].Remark, "sold no more");
  EXPECT_EQ(report.Sections[0].Changed[0].Things[0].Name, "Harbour System");
  EXPECT_EQ(report.Sections[1].Removed[0].Remark, "sold no more");
  EXPECT_EQ(report.Sections[1].Removed[0].Things[1].Name, "Big Gun");
  EXPECT_EQ(report.Sections[1].Removed[1].Remark, "bought no more");
  EXPECT_EQ(report.Sections[1].Added[0].Remark, "sold now");
  EXPECT_THAT(PlainReport(report), HasSubstr("  - pier, Big Gun (gun): sold no more; val5 0\n"));
}

TEST(APlainReport, HasALineForEachRow) {
  EXPECT_EQ(PlainReport(SmallReport()),
            "From old.fl to new.fl: 1 row added, 1 removed, 1 changed\n"
            "\n"
            "Goods: 1 added, 1 removed, 1 changed\n"
            "  ~ Gold (gold); price 100 -> 120\n"
            "  + Tea | <hot> (tea); realname Tea | <hot>; price 7\n"
            "  - Oil (oil); realname Oil; price 5\n");
}

TEST(AMarkdownReport, HasATableForEachKindOfDifference) {
  EXPECT_EQ(MarkdownReport(SmallReport()),
            "# From old.fl to new.fl\n"
            "\n"
            "1 row added, 1 removed, 1 changed.\n"
            "\n"
            "| Table | Added | Removed | Changed |\n"
            "|---|--:|--:|--:|\n"
            "| Goods | 1 | 1 | 1 |\n"
            "\n"
            "## Goods\n"
            "\n"
            "### Changed\n"
            "\n"
            "| What | Field | Old | New |\n"
            "|---|---|---|---|\n"
            "| Gold (`gold`) | price | 100 | 120 |\n"
            "\n"
            "### Added\n"
            "\n"
            "| What | Values |\n"
            "|---|---|\n"
            "| Tea \\| \\<hot\\> (`tea`) | realname: Tea \\| \\<hot\\><br>price: 7 |\n"
            "\n"
            "### Removed\n"
            "\n"
            "| What | Values |\n"
            "|---|---|\n"
            "| Oil (`oil`) | realname: Oil<br>price: 5 |\n");
}

TEST(AMarkdownReport, KeepsARowOnOneLine) {
  const TableColumns texts = {{"ID", kLong}, {"Info", FieldType::Memo}};
  const std::string markdown = MarkdownReport(ReportOf(
      {TableOf("ids_info", texts, {{7, "one\r\ntwo"}})}, {TableOf("ids_info", texts, {{7, "*"}})}));

  EXPECT_THAT(markdown, HasSubstr("| `7` | Info | one<br>two | \\* |\n"));
}

TEST(AnHtmlReport, IsOneDocumentWithoutOtherFiles) {
  const std::string html = HtmlReport(SmallReport());

  EXPECT_THAT(html, ::testing::StartsWith("<!DOCTYPE html>\n"));
  EXPECT_THAT(html, ::testing::EndsWith("</html>\n"));
  EXPECT_THAT(html, HasSubstr("<p>1 row added, 1 removed, 1 changed.</p>"));
  EXPECT_THAT(html, HasSubstr("<h2>Goods</h2>"));
  EXPECT_THAT(html, HasSubstr("<tr><td>Gold (<code>gold</code>)</td><td>price</td><td>100</td>"
                              "<td>120</td></tr>"));
  EXPECT_THAT(html, HasSubstr("Tea | &lt;hot&gt; (<code>tea</code>)"));
  for (const char* word : {"<hot>", "src=", "href=", "<img", "<script", "url("}) {
    EXPECT_THAT(html, Not(HasSubstr(word)));
  }
}

TEST(AReport, NamesTablesOfOneSide) {
  const Report report = ReportOf({TableOf("light", kGoods, {})}, {TableOf("a`b", kGoods, {})});

  EXPECT_EQ(SummaryOf(report), "0 rows added, 0 removed, 0 changed");
  EXPECT_THAT(PlainReport(report), HasSubstr("Tables added: a`b\nTables removed: light\n"));
  EXPECT_THAT(MarkdownReport(report),
              HasSubstr("\nTables added: a\\`b\n\nTables removed: `light`\n"));
  EXPECT_THAT(HtmlReport(report), HasSubstr("<p>Tables added: <code>a`b</code></p>"));
}

TEST(AReport, WithoutDifferencesSaysSo) {
  const Report report = ReportOf({}, {});

  EXPECT_EQ(PlainReport(report), "From old.fl to new.fl: No differences\n");
  EXPECT_EQ(MarkdownReport(report), "# From old.fl to new.fl\n\nNo differences.\n");
}

}  // namespace
}  // namespace orrerix
