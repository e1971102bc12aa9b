// SPDX-License-Identifier: MIT
#include "demo/format/pe_writer.h"

#include <stdexcept>
#include <string_view>

#include <gtest/gtest.h>

#include "demo/bytes.h"

namespace orrerix {
namespace {

using demo::U16At;
using demo::U32At;
using namespace std::string_view_literals;

constexpr std::size_t Pe = 0x80;
constexpr std::size_t Section = 0x200;  // file offset of the resources, which load at 0x1000

TEST(PeWriter, HeadersStandAtTheirKnownOffsets) {
  const std::string image = ResourceLibraryWriter().Image();

  EXPECT_EQ(image.substr(0, 2), "MZ");
  EXPECT_EQ(U32At(image, 0x3C), Pe);
  EXPECT_EQ(image.substr(Pe, 4), "PE\0\0"sv);
  EXPECT_EQ(U16At(image, Pe + 4), 0x14Cu);          // machine
  EXPECT_EQ(U16At(image, Pe + 6), 1u);              // sections
  EXPECT_EQ(U16At(image, Pe + 20), 224u);           // optional header
  EXPECT_EQ(U16At(image, Pe + 24), 0x10Bu);         // 32 bits
  EXPECT_EQ(U32At(image, Pe + 24 + 112), 0x1000u);  // directory 2: resources
  const std::size_t header = Pe + 24 + 224;
  EXPECT_EQ(image.substr(header, 8), ".rsrc\0\0\0"sv);
  EXPECT_EQ(U32At(image, header + 12), 0x1000u);
  EXPECT_EQ(U32At(image, header + 16), 0x200u);
  EXPECT_EQ(U32At(image, header + 20), Section);
}

TEST(PeWriter, A64BitImageHasItsDirectoriesSixteenBytesLater) {
  const std::string image = ResourceLibraryWriter().Image(PeImage::Bits64);

  EXPECT_EQ(U16At(image, Pe + 4), 0x8664u);
  EXPECT_EQ(U16At(image, Pe + 20), 240u);
  EXPECT_EQ(U16At(image, Pe + 24), 0x20Bu);
  EXPECT_EQ(U32At(image, Pe + 24 + 128), 0x1000u);
  EXPECT_EQ(image.substr(Pe + 24 + 240, 8), ".rsrc\0\0\0"sv);
}

TEST(PeWriter, AStringLiesInTheBlockOfItsNumber) {
  ResourceLibraryWriter library;
  library.AddString(17, "Ö");

  const std::string image = library.Image();

  // Three directories of 16 + 8 bytes each, then the leaf at 72 and the data at 88.
  EXPECT_EQ(U16At(image, Section + 14), 1u);
  EXPECT_EQ(U32At(image, Section + 16), 6u);
  EXPECT_EQ(U32At(image, Section + 20), 0x80000018u);
  EXPECT_EQ(U32At(image, Section + 24 + 16), 2u);  // strings 16 to 31
  EXPECT_EQ(U32At(image, Section + 24 + 20), 0x80000030u);
  EXPECT_EQ(U32At(image, Section + 48 + 16), 0x409u);
  EXPECT_EQ(U32At(image, Section + 48 + 20), 72u);
  EXPECT_EQ(U32At(image, Section + 72), 0x1000u + 88);
  EXPECT_EQ(U32At(image, Section + 76), 34u);  // sixteen lengths and one unit
  EXPECT_EQ(image.substr(Section + 88, 8), "\0\0\x01\0\xD6\0\0\0"sv);
}

TEST(PeWriter, ACardIsUtf16AfterAByteOrderMark) {
  ResourceLibraryWriter library;
  library.AddCard(5, "Aé");

  const std::string image = library.Image();

  EXPECT_EQ(U32At(image, Section + 16), 23u);
  EXPECT_EQ(U32At(image, Section + 24 + 16), 5u);
  EXPECT_EQ(U32At(image, Section + 76), 6u);
  EXPECT_EQ(image.substr(Section + 88, 6), "\xFF\xFE\x41\0\xE9\0"sv);
}

TEST(PeWriter, TypesNumbersAndLanguagesAscend) {
  ResourceLibraryWriter library;
  library.AddCard(300, "late");
  library.AddCard(2, "early", 0x0C07);
  library.AddCard(2, "early", ResourceLibraryWriter::kNeutral);
  library.AddString(1, "text");

  const std::string image = library.Image();

  // Root 32 bytes; then type 6 with one number (24 bytes) and type 23 with two (32 bytes).
  EXPECT_EQ(U32At(image, Section + 16), 6u);
  EXPECT_EQ(U32At(image, Section + 24), 23u);
  const std::size_t cards = Section + 32 + 24;
  EXPECT_EQ(U32At(image, Section + 28), 0x80000000u + 56);
  EXPECT_EQ(U32At(image, cards + 16), 2u);
  EXPECT_EQ(U32At(image, cards + 24), 300u);
  const std::size_t languages = Section + (U32At(image, cards + 20) & 0x7FFFFFFF);
  EXPECT_EQ(U16At(image, languages + 14), 2u);
  EXPECT_EQ(U32At(image, languages + 16), 0u);
  EXPECT_EQ(U32At(image, languages + 24), 0x0C07u);
}

TEST(PeWriter, RawBytesStandAsTheyAre) {
  ResourceLibraryWriter library;
  library.AddRaw({ResourceLibraryWriter::kHtmlType, 1, 0}, "odd");

  const std::string image = library.Image();

  EXPECT_EQ(U32At(image, Section + 76), 3u);
  EXPECT_EQ(image.substr(Section + 88, 3), "odd");
}

TEST(PeWriter, TheShortFormHoldsTheSameAsTheLongOne) {
  ResourceLibraryWriter library;
  library.AddString(9, "nine");
  library.AddCard(9, "card");

  EXPECT_EQ(ResourceLibraryImage({{9, "nine"}}, {{9, "card"}}), library.Image());
}

TEST(PeWriter, ATextOfMoreThan65535UnitsIsRefused) {
  ResourceLibraryWriter library;

  EXPECT_NO_THROW(library.AddString(1, std::string(65535, 'x')));
  EXPECT_THROW(library.AddString(1, std::string(65536, 'x')), std::length_error);
}

}  // namespace
}  // namespace orrerix
