// SPDX-License-Identifier: MIT
#include "platform/shortcut.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

std::string ContentOf(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(WriteShortcut, MakesADesktopEntryThatCanBeStarted) {
  const TempFolder folder;

  EXPECT_TRUE(WriteShortcut("/opt/orrerix/orrerix", folder.Path() / "FL Orrerix v1.7.lnk"));

  const fs::path entry = folder.Path() / "FL Orrerix v1.7.desktop";
  EXPECT_THAT(ContentOf(entry), HasSubstr("[Desktop Entry]\nType=Application\n"));
  EXPECT_THAT(ContentOf(entry), HasSubstr("\nName=FL Orrerix v1.7\n"));
  EXPECT_THAT(ContentOf(entry), HasSubstr("\nExec=\"/opt/orrerix/orrerix\"\n"));
  EXPECT_NE(fs::status(entry).permissions() & fs::perms::owner_exec, fs::perms::none);
}

TEST(WriteShortcut, EscapesWhatTheEntryWouldTakeForItsOwn) {
  const TempFolder folder;

  WriteShortcut("/a b/50%/$x", folder.Path() / "a.lnk");

  EXPECT_THAT(ContentOf(folder.Path() / "a.desktop"), HasSubstr("Exec=\"/a b/50%%/\\\\$x\"\n"));
}

TEST(WriteShortcut, ReplacesAnOlderOne) {
  const TempFolder folder;
  folder.Write("a.desktop", std::string(5000, 'x'));

  EXPECT_TRUE(WriteShortcut("/b", folder.Path() / "a.lnk"));

  EXPECT_THAT(ContentOf(folder.Path() / "a.desktop"), Not(HasSubstr("xxx")));
}

TEST(WriteShortcut, TellsThatItCannotBeWritten) {
  const TempFolder folder;

  EXPECT_FALSE(WriteShortcut("/b", folder.Path() / "none" / "a.lnk"));
}

}  // namespace
}  // namespace orrerix
