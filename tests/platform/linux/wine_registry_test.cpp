// SPDX-License-Identifier: MIT
#include "platform/linux/wine_registry.h"

#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

class Prefix : public ::testing::Test {
 protected:
  // A text value of the machine hive written out in the hive's own form.
  std::optional<RegistryValue> Machine(const std::string& hive, std::string_view key,
                                       std::string_view value) {
    folder.Write("system.reg", hive);
    return WineRegistry(folder.Path()).Query(RegistryHive::LocalMachine, key, value);
  }

  TempFolder folder;
};

constexpr const char* kHive = R"(WINE REGISTRY Version 2
;; All keys relative to \\Machine

#arch=win64

[Software\\Microsoft\\Microsoft Games\\Freelancer\\1.0] 1700000000
#time=1da1234567890ab
"AppPath"="C:\\Program Files\\Freelancer"
"Installed"=dword:0000002a
@="the default"
"Binary"=hex:01,02,\
  03
"Expanded"=str(2):"%ProgramFiles%"

[Software\\Other]
"AppPath"="D:\\Other"
)";

TEST_F(Prefix, HoldsTextsAndNumbers) {
  const char* key = "SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\1.0";

  EXPECT_EQ(Machine(kHive, key, "AppPath"), RegistryValue("C:\\Program Files\\Freelancer"));
  EXPECT_EQ(Machine(kHive, key, "apppath"), RegistryValue("C:\\Program Files\\Freelancer"));
  EXPECT_EQ(Machine(kHive, key, "Installed"), RegistryValue(std::uint32_t{42}));
  EXPECT_EQ(Machine(kHive, "software\\other", "AppPath"), RegistryValue("D:\\Other"));
}

TEST_F(Prefix, LacksValuesOfOtherTypes) {
  const char* key = "SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\1.0";

  EXPECT_EQ(Machine(kHive, key, "Binary"), std::nullopt);
  EXPECT_EQ(Machine(kHive, key, "Expanded"), std::nullopt);
  EXPECT_EQ(Machine(kHive, key, "Missing"), std::nullopt);
  EXPECT_EQ(Machine(kHive, "SOFTWARE\\Missing", "AppPath"), std::nullopt);
}

TEST_F(Prefix, UnescapesItsTexts) {
  EXPECT_EQ(Machine("[k]\n\"v\"=\"a\\\\b \\\"c\\\" \\x00fc\\x20ac\\n\"\n", "k", "v"),
            RegistryValue("a\\b \"c\" ü€\n"));
  EXPECT_EQ(Machine("[k\\\\\\x00fc]\r\n\"v\\\"w\"=\"x\"\r\n", "k\\ü", "v\"w"), RegistryValue("x"));
}

TEST_F(Prefix, KeepsTheFinalCharacterOfCodeZeroOfAText) {
  EXPECT_EQ(Machine("[k]\n\"v\"=\"a\\0\"\n", "k", "v"), RegistryValue(std::string("a\0", 2)));
}

TEST_F(Prefix, LooksBelowThe32BitProgramsToo) {
  const std::string hive =
      "[Software\\\\Wow6432Node\\\\Game]\n\"a\"=\"32\"\n\"b\"=\"32\"\n"
      "[Software\\\\Game]\n\"a\"=\"64\"\n";

  EXPECT_EQ(Machine(hive, "SOFTWARE\\Game", "a"), RegistryValue("64"));
  EXPECT_EQ(Machine(hive, "SOFTWARE\\Game", "b"), RegistryValue("32"));
}

TEST_F(Prefix, HasAHiveForTheUser) {
  folder.Write("user.reg", "[Software\\\\k]\n\"v\"=\"x\"\n");
  const WineRegistry registry(folder.Path());

  EXPECT_EQ(registry.Query(RegistryHive::CurrentUser, "Software\\k", "v"), RegistryValue("x"));
  EXPECT_EQ(registry.Query(RegistryHive::LocalMachine, "Software\\k", "v"), std::nullopt);
}

TEST_F(Prefix, WithoutFilesHasNoValues) {
  const WineRegistry registry(folder.Path() / "none");

  EXPECT_EQ(registry.Query(RegistryHive::LocalMachine, "k", "v"), std::nullopt);
  EXPECT_EQ(registry.RealPath("C:\\"), std::nullopt);
}

TEST_F(Prefix, BearsOddLines) {
  for (const char* hive :
       {"[", "[k", "[k]\n\"", "[k]\n\"v", "[k]\n\"v\"", "[k]\n\"v\"=", "[k]\n\"v\"=\"",
        "[k]\n\"v\"=\"\\", "[k]\n\"v\"=\"\\x", "[k]\n\"v\"=\"\\xzz\"",
        "[k]\n\"v\"=dword:", "[k]\n\"v\"=dword:zz", "\"v\"=\"x\"", "", "]\n=\n\\\n"}) {
    Machine(hive, "k", "v");
  }
  EXPECT_EQ(Machine("[k]\n\"v\"=\"open", "k", "v"), RegistryValue("open"));
}

TEST_F(Prefix, TurnsPathsIntoRealOnes) {
  fs::create_directories(folder.Path() / "dosdevices");
  fs::create_directories(folder.Path() / "drive_c" / "Program Files" / "FREELANCER");
  fs::create_directory_symlink("../drive_c", folder.Path() / "dosdevices" / "c:");
  const WineRegistry registry(folder.Path());
  const fs::path drive = fs::canonical(folder.Path() / "drive_c");

  EXPECT_EQ(registry.RealPath("C:\\Program Files\\Freelancer"),
            (drive / "Program Files" / "FREELANCER").string());
  EXPECT_EQ(registry.RealPath("c:"), drive.string());
  EXPECT_EQ(registry.RealPath("C:\\Missing"), std::nullopt);
  EXPECT_EQ(registry.RealPath("D:\\"), std::nullopt);
  EXPECT_EQ(registry.RealPath("Program Files"), std::nullopt);
  EXPECT_EQ(registry.RealPath(""), std::nullopt);
}

TEST_F(Prefix, IsTheOneOfTheEnvironmentOrTheHomeFolders) {
  const EnvironmentVariable home("HOME", "/players/fox");
  {
    const EnvironmentVariable prefix("WINEPREFIX", "/games/prefix");
    EXPECT_EQ(WineRegistry::DefaultPrefix(), "/games/prefix");
  }
  const EnvironmentVariable empty("WINEPREFIX", "");
  EXPECT_EQ(WineRegistry::DefaultPrefix(), "/players/fox/.wine");
  const EnvironmentVariable none("WINEPREFIX", std::nullopt);
  EXPECT_EQ(WineRegistry::DefaultPrefix(), "/players/fox/.wine");
}

}  // namespace
}  // namespace orrerix
