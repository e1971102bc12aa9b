// SPDX-License-Identifier: MIT
#include "check/rules/rule.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

namespace orrerix::check {
namespace {

TEST(RuleTable, StandsInTheOrderOfIdsAndOfTheRulesThemselves) {
  const auto rules = AllRules();
  EXPECT_EQ(rules.size(), 60u);
  for (std::size_t i = 0; i < rules.size(); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(rules[i].Rule), i) << rules[i].Id;
    if (i > 0) {
      EXPECT_LT(rules[i - 1].Id, rules[i].Id);
    }
    EXPECT_FALSE(rules[i].Title.empty()) << rules[i].Id;
    EXPECT_FALSE(rules[i].Explanation.empty()) << rules[i].Id;
  }
}

TEST(RuleTable, FindsARuleByItsId) {
  EXPECT_EQ(FindRule("market-good"), Rule::MarketGood);
  EXPECT_EQ(FindRule("Market-Good"), std::nullopt);
  EXPECT_EQ(FindRule(""), std::nullopt);
}

TEST(RuleTable, ExplainsARule) {
  EXPECT_EQ(ExplainRule(Rule::MarketGood),
            "market-good (error): A market sells a good that does not exist.\n"
            "The first value of MarketGood names no good.\n");
}

// To regenerate the page: orrerix-cli check --explain all --output docs/rules.md
TEST(RuleTable, IsThePageInTheDocuments) {
  std::ifstream stream(ORRERIX_RULES_PAGE, std::ios::binary);
  const std::string page(std::istreambuf_iterator<char>(stream), {});

  EXPECT_EQ(page, RulesPage());
}

}  // namespace
}  // namespace orrerix::check
