// SPDX-License-Identifier: MIT
#include "import/whole_file.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

using namespace std::string_literals;

std::optional<WholeFile> ReadWhole(const std::filesystem::path& path,
                                   std::streamoff longest = 100) {
  std::ifstream stream(path, std::ios::binary);
  return WholeFile::Read(stream, longest);
}

TEST(WholeFile, HasEveryByte) {
  const TempFolder folder;
  const auto file = ReadWhole(folder.Write("file", "a\r\n\0\xFF"s));

  ASSERT_TRUE(file);
  EXPECT_EQ(file->Bytes(), "a\r\n\0\xFF"s);
}

TEST(WholeFile, MayBeEmpty) {
  const TempFolder folder;
  const auto file = ReadWhole(folder.Write("file", ""));

  ASSERT_TRUE(file);
  EXPECT_TRUE(file->Bytes().empty());
}

TEST(WholeFile, IsNotReadIfItIsLongerThanAllowed) {
  const TempFolder folder;
  EXPECT_TRUE(ReadWhole(folder.Write("file", "abc"), 3));
  EXPECT_FALSE(ReadWhole(folder.Write("file", "abcd"), 3));
}

TEST(WholeFile, ThatIsNotThereIsNotRead) {
  const TempFolder folder;
  EXPECT_FALSE(ReadWhole(folder.Path() / "missing"));
}

}  // namespace
}  // namespace orrerix
