// SPDX-License-Identifier: MIT
#include "demo/format/bini_writer.h"

#include <stdexcept>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/bytes.h"

namespace orrerix {
namespace {

using demo::U16At;
using demo::U32At;
using namespace std::string_view_literals;
using testing::ElementsAre;

TEST(BiniWriter, PacksASmallIniByteForByte) {
  const std::string_view ini =
      "[Good]\r\n"
      "nickname = gold ; the metal\r\n"
      "price = 300, 0.5\r\n"
      "bases\r\n";

  const std::string packed = PackIni(ini);

  // Header 12, section head 4, entries 3 + 5, 3 + 10 and 3: the table begins at 12 + 4 + 24 = 40.
  // In the table: Good 0, nickname 5, price 14, bases 20, gold 26. 300 is 012C; 0.5 is 3F000000.
  const std::string_view expected =
      "BINI\x01\0\0\0\x28\0\0\0"
      "\0\0\x03\0"
      "\x05\0\x01\x03\x1A\0\0\0"
      "\x0E\0\x02\x01\x2C\x01\0\0\x02\0\0\0\x3F"
      "\x14\0\0"
      "Good\0nickname\0price\0bases\0gold\0"sv;
  EXPECT_EQ(packed, expected);
}

TEST(BiniWriter, AnEmptyTextPacksToAHeaderAlone) {
  EXPECT_EQ(PackIni(""), "BINI\x01\0\0\0\x0C\0\0\0"sv);
}

TEST(BiniWriter, NumbersInTheirPlainSpellingBecomeNumbersAndOthersStayTexts) {
  const auto sections =
      SectionsOfIni("[a]\nk = 7, -7, 007, +7, 0, 1.5, -0.25, .5, 1e3, 4294967296, 7a\n");

  ASSERT_EQ(sections.size(), 1u);
  using V = PackedValue;
  EXPECT_THAT(sections[0].Entries[0].Values,
              ElementsAre(V(7), V(-7), V("007"), V("+7"), V(0), V(1.5f), V(-0.25f), V(".5"),
                          V("1e3"), V("4294967296"), V("7a")));
}

TEST(BiniWriter, LinesBeforeTheFirstHeaderAndCommentsAreDropped) {
  const auto sections = SectionsOfIni("stray = 1\r\n; [Ghost]\r\n[ Real ]\r\n\r\nkey=a , b\r\n");

  ASSERT_EQ(sections.size(), 1u);
  EXPECT_EQ(sections[0].Name, "Real");
  ASSERT_EQ(sections[0].Entries.size(), 1u);
  EXPECT_EQ(sections[0].Entries[0].Key, "key");
  EXPECT_THAT(sections[0].Entries[0].Values, ElementsAre(PackedValue("a"), PackedValue("b")));
}

TEST(BiniWriter, ATextThatOccursTwiceIsStoredOnce) {
  const std::string packed = PackIni("[a]\nx = a\n[a]\nx = x\n");

  // 12 bytes of header and twice 4 + 3 + 5 make 36; the table holds "a" and "x", each with its NUL.
  EXPECT_EQ(U32At(packed, 8), 36u);
  EXPECT_EQ(packed.size(), 40u);
}

TEST(BiniWriter, NamesComeBeforeValuesInTheTableSoThatTheirOffsetsFit) {
  PackedSection first{"a", {{"k", {std::string(70000, 'v')}}}};
  PackedSection second{"b", {}};

  const std::string packed = PackSections({first, second});

  // The second section stands after 12 + 4 + 3 + 5 bytes; "a" and "k" take 4 bytes of the table.
  EXPECT_EQ(U16At(packed, 24), 4u);
}

TEST(BiniWriter, RefusesWhatDoesNotFitItsField) {
  const PackedEntry manyValues{"k", std::vector<PackedValue>(256, 1)};
  const PackedSection manyEntries{"a", std::vector<PackedEntry>(65536, PackedEntry{"k", {}})};
  const PackedSection longName{std::string(65536, 'n'), {{"k", {}}}};

  EXPECT_THROW(PackSections({{"a", {manyValues}}}), std::length_error);
  EXPECT_THROW(PackSections({manyEntries}), std::length_error);
  EXPECT_THROW(PackSections({longName}), std::length_error);
}

}  // namespace
}  // namespace orrerix
