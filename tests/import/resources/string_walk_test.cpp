// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/resources/resource_strings.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The table of blocks stands 23,936 bytes into the file; a record has 16 bytes.
constexpr std::size_t kTable = 23936;

std::string Stored(std::string_view text) {
  std::string bytes{static_cast<char>(text.size()), '\0'};
  for (const char c : text) {
    bytes += c;
    bytes += '\0';
  }
  return bytes;
}

// A library that holds blocks of strings after its table.
std::string Library(const std::vector<std::string>& blocks) {
  std::string file(kTable, '\0');
  std::size_t offset = kTable + 16 * blocks.size();
  for (const std::string& block : blocks) {
    for (int shift : {0, 8, 16}) file += static_cast<char>(offset >> shift & 0xFF);
    file += '\0';
    for (int shift : {0, 8}) file += static_cast<char>(block.size() >> shift & 0xFF);
    file += std::string(10, '\0');
    offset += block.size();
  }
  for (const std::string& block : blocks) file += block;
  return file;
}

class StringWalk : public ReaderFixture {
 protected:
  void Walk(const std::string& file) {
    folder.Write("EXE/NameResources.dll", file);
    XTractNames(import);
  }
};

TEST_F(StringWalk, NumbersTheStringsOfAllBlocks) {
  // What reaches the end of the last block is no string: "Dog" is left out.
  Walk(Library({Stored("Fox") + Stored("Ox"), Stored("Cat") + Stored("Dog")}));

  EXPECT_THAT(Column("Names", "ID"), ElementsAre("196608", "196609", "196610"));
  EXPECT_THAT(Column("Names", "name"), ElementsAre("Fox", "Ox", "Cat"));
  EXPECT_THAT(FieldNames("Names"), ElementsAre("ID", "name"));
}

TEST_F(StringWalk, LeavesLongStringsOut) {
  Walk(Library({Stored(std::string(104, 'x')) + Stored(std::string(105, 'y')) + Stored("end"),
                Stored("last")}));

  EXPECT_THAT(Column("Names", "name"), ElementsAre(std::string(104, 'x'), "end"));
}

TEST_F(StringWalk, KeepsEmptyStrings) {
  Walk(Library({Stored("") + Stored("Fox"), Stored("last")}));

  EXPECT_THAT(Column("Names", "name"), ElementsAre("", "Fox"));
}

TEST_F(StringWalk, StopsAStringAtTheEndOfItsBlock) {
  // The block ends after "Fo"; the string claims 9 characters and runs on into the next block. It
  // ends when the position is 2 beyond the block, and loses the last character it took.
  std::string cut = Stored("Fo");
  cut[0] = 9;
  Walk(Library({cut, Stored("Cat") + Stored("Dog")}));

  EXPECT_THAT(Column("Names", "name"), ElementsAre("Fo", "Cat"));
}

TEST_F(StringWalk, ShowsTheFirstStringAndEveryHundredthAfterIt) {
  std::string block;
  for (int i = 0; i < 150; ++i) block += Stored("s" + std::to_string(i));
  Walk(Library({block, Stored("last")}));

  // Up to s99 the block holds 10 strings of 2 + 4 bytes and 90 of 2 + 6; s100 has 2 + 8. The
  // table has two records, and positions count from 1.
  const std::size_t position = kTable + 32 + 10 * 6 + 90 * 8 + 10 + 1;
  const std::size_t length = kTable + 32 + block.size() + 10;
  EXPECT_EQ(host.Text, "Reading Textdata " + std::to_string(position) + "/" +
                           std::to_string(length) + "\r\n\r\ns100");
  EXPECT_EQ(host.Yields, 2);
}

TEST_F(StringWalk, AMissingLibraryIsAFailure) {
  XTractNames(import);

  EXPECT_THAT(FailureNumbers(), ElementsAre(53));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.XTractNames");
  EXPECT_EQ(log.Failures()[0].Info, "");
}

TEST_F(StringWalk, BearsAnotherLibrary) {
  Walk("MZ");
  EXPECT_THAT(Rows("Names"), IsEmpty());
  db = DBEngine::CreateInMemory(mustWork);

  Walk(std::string(30000, '\xFF'));
  EXPECT_THAT(Rows("Names"), IsEmpty());
}

TEST_F(StringWalk, BearsALibraryThatIsCutAnywhereAfterItsTable) {
  const std::string whole = Library({Stored("Fox") + Stored("Ox"), Stored("Cat")});

  for (std::size_t length = kTable; length < whole.size(); ++length) {
    Walk(whole.substr(0, length));
    EXPECT_TRUE(db.HasTable("Names"));
    db = DBEngine::CreateInMemory(mustWork);
  }
}

}  // namespace
}  // namespace orrerix
