// SPDX-License-Identifier: MIT
#include "import/ini/packed_ini.h"

#include <bit>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "demo/format/bini_writer.h"

namespace orrerix {
namespace {

using namespace std::string_literals;

std::string U16(std::uint32_t number) {
  return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8 & 0xFF)};
}

std::string U32(std::uint32_t number) {
  return U16(number & 0xFFFF) + U16(number >> 16);
}

// A file of one section "s" with one entry "k" and one value.
std::string WithValue(std::uint32_t type, std::uint32_t data, std::uint32_t version = 1) {
  const std::string sections =
      U16(0) + U16(1) + U16(2) + "\x01" + static_cast<char>(type) + U32(data);
  return "BINI" + U32(version) + U32(12 + static_cast<std::uint32_t>(sections.size())) + sections +
         "s\0k\0text\0"s;
}

TEST(PackedIni, IsToldByItsFirstFourBytes) {
  EXPECT_TRUE(IsPackedIni("BINI\1\0\0\0"));
  EXPECT_FALSE(IsPackedIni("bini"));
  EXPECT_FALSE(IsPackedIni("BIN"));
  EXPECT_FALSE(IsPackedIni(""));
}

TEST(UnpackIni, WritesSectionsEntriesAndAnEmptyLineAfterEach) {
  const std::string packed = PackSections({
      {"Ship", {{"nickname", {"fox"s}}, {"pos", {-10, 2.5f, "deep space"s}}, {"empty", {}}}},
      {"gun", {}},
  });

  EXPECT_EQ(UnpackIni(packed),
            "[Ship]\r\nnickname = fox\r\npos = -10, 2.5, deep space\r\nempty = \r\n\r\n"
            "[gun]\r\n\r\n");
}

TEST(UnpackIni, AFileWithoutSectionsIsAnEmptyText) {
  EXPECT_EQ(UnpackIni("BINI" + U32(1) + U32(12)), "");
}

struct RealCase {
  float Real;
  std::string_view Text;
};

class RealText : public ::testing::TestWithParam<RealCase> {};

TEST_P(RealText, IsTheShortestThatReadsBack) {
  const auto text = UnpackIni(WithValue(2, std::bit_cast<std::uint32_t>(GetParam().Real)));

  EXPECT_EQ(text, "[s]\r\nk = " + std::string(GetParam().Text) + "\r\n\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Reals, RealText,
    ::testing::Values(RealCase{30.0f, "30"}, RealCase{0.1f, "0.1"}, RealCase{-12.5f, "-12.5"},
                      RealCase{0.0f, "0"}, RealCase{1.0f / 3, "0.33333334"},
                      RealCase{123456.789f, "123456.79"}, RealCase{16777216.0f, "16777216"},
                      RealCase{1e10f, "10000000000"}, RealCase{1e-7f, "0.0000001"},
                      RealCase{0.05f, "0.05"}, RealCase{100.25f, "100.25"},
                      RealCase{3.4028235e38f, "340282350000000000000000000000000000000"}));

struct IntegerCase {
  std::uint32_t Data;
  std::string_view Text;
};

class IntegerText : public ::testing::TestWithParam<IntegerCase> {};

TEST_P(IntegerText, IsSignedDecimal) {
  EXPECT_EQ(UnpackIni(WithValue(1, GetParam().Data)),
            "[s]\r\nk = " + std::string(GetParam().Text) + "\r\n\r\n");
}

INSTANTIATE_TEST_SUITE_P(Integers, IntegerText,
                         ::testing::Values(IntegerCase{0, "0"}, IntegerCase{42, "42"},
                                           IntegerCase{0xFFFFFFFF, "-1"},
                                           IntegerCase{0x80000000, "-2147483648"}));

TEST(UnpackIni, TextsStandAsTheyAre) {
  EXPECT_EQ(UnpackIni(WithValue(3, 4)), "[s]\r\nk = text\r\n\r\n");
  // An offset into the middle of a text, and one of its NUL.
  EXPECT_EQ(UnpackIni(WithValue(3, 6)), "[s]\r\nk = xt\r\n\r\n");
  EXPECT_EQ(UnpackIni(WithValue(3, 8)), "[s]\r\nk = \r\n\r\n");
  EXPECT_EQ(UnpackIni(PackSections({{"M\xFCll", {}}})), "[M\xFCll]\r\n\r\n");
}

TEST(UnpackIni, RefusesAnotherVersion) {
  EXPECT_FALSE(UnpackIni(WithValue(1, 5, 0)));
  EXPECT_FALSE(UnpackIni(WithValue(1, 5, 2)));
}

TEST(UnpackIni, RefusesUnknownTypesOfValues) {
  for (const std::uint32_t type : {0u, 4u, 0x80u, 0xFFu}) {
    EXPECT_FALSE(UnpackIni(WithValue(type, 5))) << type;
  }
}

TEST(UnpackIni, RefusesTextsOutsideTheTable) {
  EXPECT_FALSE(UnpackIni(WithValue(3, 9)));
  EXPECT_FALSE(UnpackIni(WithValue(3, 0xFFFFFFFF)));
}

TEST(UnpackIni, RefusesATableOutsideTheFile) {
  EXPECT_FALSE(UnpackIni("BINI" + U32(1) + U32(13)));
  EXPECT_FALSE(UnpackIni("BINI" + U32(1) + U32(0xFFFFFFFF)));
  EXPECT_FALSE(UnpackIni("BINI" + U32(1) + U32(11)));
}

TEST(UnpackIni, RefusesMoreEntriesOrValuesThanThereAre) {
  const std::string one = WithValue(1, 5);
  std::string entries = one;
  entries[14] = 2;
  std::string values = one;
  values[18] = 2;

  EXPECT_FALSE(UnpackIni(entries));
  EXPECT_FALSE(UnpackIni(values));
}

TEST(UnpackIni, RefusesASmallFileThatUnpacksToAHugeText) {
  // 65,535 entries, each naming a key of 100,000 characters.
  std::string sections = U16(0) + U16(65535);
  for (int i = 0; i < 65535; ++i) sections += U16(0) + std::string(1, '\0');
  const std::string packed = "BINI" + U32(1) +
                             U32(12 + static_cast<std::uint32_t>(sections.size())) + sections +
                             std::string(100'000, 'x');

  EXPECT_FALSE(UnpackIni(packed));
}

TEST(UnpackIni, BearsAFileThatIsCutAnywhere) {
  const std::string whole =
      PackSections({{"Ship", {{"nickname", {"fox"s}}, {"pos", {1, 2.5f, "x"s}}}}, {"gun", {}}});

  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto text = UnpackIni(whole.substr(0, length));
    EXPECT_TRUE(!text || !text->empty()) << length;
  }
}

TEST(UnpackIni, BearsEveryByteBeingAnother) {
  const std::string whole =
      PackSections({{"Ship", {{"nickname", {"fox"s}}, {"pos", {1, 2.5f, "x"s}}}}});

  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : {'\x00', '\x01', '\x7F', '\x80', '\xFF'}) {
      std::string changed = whole;
      changed[at] = byte;
      UnpackIni(changed);
    }
  }
}

}  // namespace
}  // namespace orrerix
