// SPDX-License-Identifier: MIT
#include "import/resources/resource_library.h"

#include <cstdint>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/format/pe_writer.h"
#include "import/resources/info_card.h"

namespace orrerix {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr std::size_t kPe = 0x80;
// Where the writer puts its resources; with one text of one type the directories stand at 0, 24
// and 48, the leaf at 72, and an entry's offset 20 bytes into its directory.
constexpr std::size_t kResources = 0x200;
constexpr std::size_t kTypeOffset = kResources + 20;
constexpr std::size_t kNumberOffset = kResources + 24 + 20;
constexpr std::size_t kLanguageOffset = kResources + 48 + 20;
constexpr std::size_t kLeaf = kResources + 72;

std::string WithU32(std::string image, std::size_t at, std::uint32_t number) {
  for (std::size_t i = 0; i < 4; ++i) image[at + i] = static_cast<char>(number >> (8 * i) & 0xFF);
  return image;
}

std::string OneString() {
  ResourceLibraryWriter writer;
  writer.AddString(17, "Fox");
  return writer.Image();
}

// What a string of raw UTF-16 bytes becomes.
std::string TextOfUnits(const std::string& bytes) {
  ResourceLibraryWriter writer;
  const auto units = bytes.size() / 2;
  std::string block(2, '\0');  // string 16 is absent
  block += static_cast<char>(units & 0xFF);
  block += static_cast<char>(units >> 8);
  writer.AddRaw({ResourceLibraryWriter::kStringType, 2, 0}, block + bytes);
  const std::string image = writer.Image();
  const auto strings = ResourceLibrary::Open(image)->Strings();
  return strings.count(17) == 0 ? "(absent)" : strings.at(17);
}

TEST(ResourceLibrary, HoldsStringsByTheirNumbers) {
  ResourceLibraryWriter writer;
  writer.AddString(1, "one");
  writer.AddString(15, "fifteen");
  writer.AddString(16, "sixteen");
  writer.AddString(65535, "Ende, größer geht es nicht");
  for (const PeImage kind : {PeImage::Bits32, PeImage::Bits64}) {
    const std::string image = writer.Image(kind);

    const auto library = ResourceLibrary::Open(image);

    ASSERT_TRUE(library);
    EXPECT_THAT(library->Strings(),
                ElementsAre(Pair(1, "one"), Pair(15, "fifteen"), Pair(16, "sixteen"),
                            Pair(65535, "Ende, größer geht es nicht")));
    EXPECT_THAT(library->Cards(), IsEmpty());
  }
}

TEST(ResourceLibrary, NumberZeroIsNeverRead) {
  ResourceLibraryWriter writer;
  writer.AddString(0, "none");
  writer.AddString(1, "one");
  writer.AddRaw({ResourceLibraryWriter::kHtmlType, 0, 0}, "x");
  writer.AddRaw({ResourceLibraryWriter::kHtmlType, 1, 0}, "y");
  writer.AddRaw({ResourceLibraryWriter::kHtmlType, 65535, 0}, "z");
  writer.AddRaw({ResourceLibraryWriter::kHtmlType, 65536, 0}, "w");
  const std::string image = writer.Image();

  const auto library = ResourceLibrary::Open(image);

  EXPECT_THAT(library->Strings(), ElementsAre(Pair(1, "one")));
  EXPECT_THAT(library->Cards(), ElementsAre(Pair(1, "y"), Pair(65535, "z")));
}

TEST(ResourceLibrary, CardsAreTheirRawBytes) {
  ResourceLibraryWriter writer;
  writer.AddRaw({ResourceLibraryWriter::kHtmlType, 5, 0},
                "\xFF\xFE"
                "a\0b"s);
  const std::string image = writer.Image();

  EXPECT_THAT(ResourceLibrary::Open(image)->Cards(), ElementsAre(Pair(5,
                                                                      "\xFF\xFE"
                                                                      "a\0b"s)));
}

TEST(ResourceLibrary, TheNeutralLanguageComesFirstThenEnglishThenTheFirst) {
  const auto card = [](std::initializer_list<std::uint32_t> languages) {
    ResourceLibraryWriter writer;
    for (const std::uint32_t language : languages) {
      writer.AddRaw({ResourceLibraryWriter::kHtmlType, 5, language}, std::to_string(language));
    }
    const std::string image = writer.Image();
    return std::string(ResourceLibrary::Open(image)->Cards().at(5));
  };

  EXPECT_EQ(card({0, 0x0407, 0x0409}), "0");
  EXPECT_EQ(card({0x0407, 0x0409, 0x040C}), "1033");
  EXPECT_EQ(card({0x0407, 0x040C}), "1031");
  EXPECT_EQ(card({0x0C09}), "3081");
}

TEST(ResourceLibrary, AStringIsCutTo1023Characters) {
  ResourceLibraryWriter writer;
  writer.AddString(1, std::string(1022, 'x') + "é" + "zz");
  writer.AddString(2, std::string(1023, 'y'));
  const std::string image = writer.Image();

  const auto strings = ResourceLibrary::Open(image)->Strings();

  EXPECT_EQ(strings.at(1), std::string(1022, 'x') + "é");
  EXPECT_EQ(strings.at(2), std::string(1023, 'y'));
}

TEST(ResourceLibrary, CharactersThatTheGamesSetLacksBecomeQuestionMarks) {
  ResourceLibraryWriter writer;
  writer.AddString(1, "a→b “c” €");
  const std::string image = writer.Image();

  EXPECT_EQ(ResourceLibrary::Open(image)->Strings().at(1), "a?b “c” €");
}

TEST(ResourceLibrary, HalvesOfSurrogatePairsAreQuestionMarks) {
  EXPECT_EQ(TextOfUnits("a\0\x3D\xD8"
                        "b\0"s),
            "a?b");
  EXPECT_EQ(TextOfUnits("a\0\x00\xDC"
                        "b\0"s),
            "a?b");
  EXPECT_EQ(TextOfUnits("\x3D\xD8\x00\xDE"s), "?");  // one character outside the game's set
}

TEST(ResourceLibrary, AStringCutShortByItsBlockIsAbsent) {
  ResourceLibraryWriter writer;
  // String 16 has one character, string 17 claims five and has two.
  writer.AddRaw({ResourceLibraryWriter::kStringType, 2, 0}, "\1\0a\0\5\0b\0c\0"s);
  writer.AddRaw({ResourceLibraryWriter::kStringType, 3, 0}, "\1"s);
  writer.AddRaw({ResourceLibraryWriter::kStringType, 4, 0}, ""s);
  const std::string image = writer.Image();

  EXPECT_THAT(ResourceLibrary::Open(image)->Strings(), ElementsAre(Pair(16, "a")));
}

TEST(ResourceLibrary, BlocksOutsideTheNumbersAreLeftOut) {
  ResourceLibraryWriter writer;
  writer.AddRaw({ResourceLibraryWriter::kStringType, 0, 0}, "\1\0a\0"s);
  writer.AddRaw({ResourceLibraryWriter::kStringType, 4096, 0}, "\1\0b\0"s);  // 65520 to 65535
  writer.AddRaw({ResourceLibraryWriter::kStringType, 4097, 0}, "\1\0c\0"s);
  const std::string image = writer.Image();

  EXPECT_THAT(ResourceLibrary::Open(image)->Strings(), ElementsAre(Pair(65520, "b")));
}

TEST(ResourceLibrary, OtherTypesOfResourcesAreLeftOut) {
  ResourceLibraryWriter writer;
  writer.AddRaw({16, 1, 0}, "version");
  writer.AddString(1, "one");
  const std::string image = writer.Image();

  EXPECT_THAT(ResourceLibrary::Open(image)->Strings(), ElementsAre(Pair(1, "one")));
}

TEST(ResourceLibrary, NamedEntriesAreLeftOut) {
  // The type's entry becomes a named one; the header counts do not matter.
  const std::string image = WithU32(OneString(), kTypeOffset - 4, 0x80000006);

  const auto library = ResourceLibrary::Open(image);

  ASSERT_TRUE(library);
  EXPECT_THAT(library->Strings(), IsEmpty());
}

TEST(ResourceLibrary, ALibraryWithoutTextsIsALibrary) {
  const std::string empty = ResourceLibraryWriter().Image();
  const std::string without = WithU32(empty, kPe + 24 + 96 + 16, 0);

  for (const std::string& image : {empty, without}) {
    const auto library = ResourceLibrary::Open(image);
    ASSERT_TRUE(library);
    EXPECT_THAT(library->Strings(), IsEmpty());
    EXPECT_THAT(library->Cards(), IsEmpty());
  }
}

TEST(ResourceLibrary, WhatIsNoLibraryIsRefused) {
  const std::string image = OneString();
  std::string noStub = image;
  noStub[0] = 'N';
  std::string noMagic = image;
  noMagic[kPe + 24] = '\x07';

  EXPECT_FALSE(ResourceLibrary::Open(""));
  EXPECT_FALSE(ResourceLibrary::Open("MZ"));
  EXPECT_FALSE(ResourceLibrary::Open(std::string(4096, '\0')));
  EXPECT_FALSE(ResourceLibrary::Open(noStub));
  EXPECT_FALSE(ResourceLibrary::Open(noMagic));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(image, 0x3C, 0xFFFFFFF0)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(image, kPe, 0)));
}

TEST(ResourceLibrary, AResourceDirectoryOutsideTheFileIsRefused) {
  constexpr std::size_t address = kPe + 24 + 96 + 16;
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), address, 0x00900000)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), address, 0xFFFFFFFF)));
}

TEST(ResourceLibrary, DirectoriesThatLoopAreRefused) {
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kTypeOffset, 0x80000000)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kNumberOffset, 0x80000000)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kNumberOffset, 0x80000018)));
}

TEST(ResourceLibrary, DepthsOtherThanThreeAreRefused) {
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kTypeOffset, 72)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kNumberOffset, 72)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kLanguageOffset, 0x80000048)));
}

TEST(ResourceLibrary, DirectoriesOutsideTheFileAreRefused) {
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kTypeOffset, 0x87FFFFFF)));
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kNumberOffset, 0xFFFFFFFF)));
}

TEST(ResourceLibrary, MoreEntriesThanTheFileHoldsAreRefused) {
  EXPECT_FALSE(ResourceLibrary::Open(WithU32(OneString(), kResources + 12, 0xFFFFFFFF)));
}

TEST(ResourceLibrary, ALeafOutsideTheFileIsAbsent) {
  const std::string image = OneString();
  for (const std::string& changed :
       {WithU32(image, kLeaf, 0x00900000), WithU32(image, kLeaf, 0),
        WithU32(image, kLeaf + 4, 0x7FFFFFFF), WithU32(image, kLanguageOffset, 0x7FFFFFFF)}) {
    const auto library = ResourceLibrary::Open(changed);
    ASSERT_TRUE(library);
    EXPECT_THAT(library->Strings(), IsEmpty());
  }
}

std::string SomeLibrary() {
  ResourceLibraryWriter writer;
  writer.AddString(1, "one");
  writer.AddString(40, "forty");
  writer.AddCard(5, "<RDL><TEXT>Planet Fox</TEXT></RDL>");
  writer.AddCard(6, "x", ResourceLibraryWriter::kNeutral);
  return writer.Image();
}

void ReadAll(std::string_view bytes) {
  const auto library = ResourceLibrary::Open(bytes);
  if (!library) return;
  library->Strings();
  for (const auto& [number, data] : library->Cards()) {
    const std::string text = FromUtf16(data);
    InfoCardToText(CleanEnd(text));
  }
}

TEST(ResourceLibrary, BearsAFileThatIsCutAnywhere) {
  const std::string image = SomeLibrary();

  for (std::size_t length = 0; length < image.size(); ++length) {
    // A copy of its own, so that a read beyond the end is found.
    ReadAll(std::string(image, 0, length));
  }
}

TEST(ResourceLibrary, BearsEveryByteBeingAnother) {
  const std::string image = SomeLibrary();

  for (std::size_t at = 0; at < image.size(); ++at) {
    for (const char byte : {'\x00', '\x01', '\x7F', '\x80', '\xFF'}) {
      std::string changed = image;
      changed[at] = byte;
      ReadAll(changed);
    }
  }
}

TEST(FromUtf16, JoinsSurrogatePairs) {
  EXPECT_EQ(FromUtf16("\x3D\xD8\x80\xDE"s), "🚀");
  EXPECT_EQ(FromUtf16("\x3D\xD8\x3D\xD8\x80\xDE"s), "?🚀");
  EXPECT_EQ(FromUtf16("\x3D\xD8"s), "?");
}

TEST(FromUtf16, FindsOneOtherCharacterAtEveryPlaceOfALongText) {
  for (std::size_t at = 0; at <= 40; ++at) {
    std::string bytes;
    for (int i = 0; i < 40; ++i) bytes += "x\0"s;
    const std::string before(at, 'x');
    const std::string behind(40 - at, 'x');

    EXPECT_EQ(FromUtf16(std::string(bytes).insert(2 * at, "\xFC\0"s)), before + "ü" + behind);
    EXPECT_EQ(FromUtf16(std::string(bytes).insert(2 * at, "\x41\x01"s)), before + "Ł" + behind);
  }
}

TEST(FromUtf16, ALastOddByteIsACharacter) {
  EXPECT_EQ(FromUtf16("a\0b\0c"s), "abc");
  EXPECT_EQ(FromUtf16("\xFC"), "ü");
  EXPECT_EQ(FromUtf16(""), "");
  EXPECT_EQ(FromUtf16("\x3D\xD8"
                      "c"s),
            "?c");
}

}  // namespace
}  // namespace orrerix
