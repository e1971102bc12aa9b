// SPDX-License-Identifier: MIT
#include "platform/windows/windows_registry.h"

#include <cwchar>
#include <string>

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/path_text.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

// A key of the tests' own below "Software", gone after each of them.
class RegistryTest : public ::testing::Test {
 protected:
  static constexpr const wchar_t* kKey = L"Software\\Orrerix Test";
  static constexpr const char* kName = "Software\\Orrerix Test";

  ~RegistryTest() override {
    RegDeleteKeyExW(HKEY_CURRENT_USER, kKey, KEY_WOW64_64KEY, 0);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, kKey, KEY_WOW64_64KEY, 0);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, kKey, KEY_WOW64_32KEY, 0);
  }

  // False where this user may not write there.
  bool Put(HKEY hive, REGSAM view, const wchar_t* name, DWORD type, const void* data, DWORD size) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(hive, kKey, 0, nullptr, 0, KEY_WRITE | view, nullptr, &key, nullptr) !=
        ERROR_SUCCESS) {
      return false;
    }
    const LSTATUS status = RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS;
  }
  bool PutText(HKEY hive, REGSAM view, const std::wstring& text) {
    return Put(hive, view, L"AppPath", REG_SZ, text.c_str(),
               static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }

  std::optional<RegistryValue> Query(RegistryHive hive, const char* value = "AppPath") const {
    return registry.Query(hive, kName, value);
  }

  WindowsRegistry registry;
};

TEST_F(RegistryTest, ATextHasItsFinalNul) {
  PutText(HKEY_CURRENT_USER, KEY_WOW64_64KEY, L"C:\\Spiele f\u00FCr \u20AC");

  const auto value = Query(RegistryHive::CurrentUser);

  ASSERT_TRUE(value);
  EXPECT_EQ(std::get<std::string>(*value), std::string("C:\\Spiele für €") + '\0');
}

TEST_F(RegistryTest, ANumberHas32Bits) {
  const DWORD number = 0xFEDCBA98;
  Put(HKEY_CURRENT_USER, KEY_WOW64_64KEY, L"Number", REG_DWORD, &number, sizeof number);

  EXPECT_EQ(Query(RegistryHive::CurrentUser, "number"), RegistryValue(0xFEDCBA98u));
}

TEST_F(RegistryTest, OtherTypesAndWhatIsMissingAreNothing) {
  Put(HKEY_CURRENT_USER, KEY_WOW64_64KEY, L"Bytes", REG_BINARY, "abcd", 4);

  EXPECT_FALSE(Query(RegistryHive::CurrentUser, "Bytes"));
  EXPECT_FALSE(Query(RegistryHive::CurrentUser, "None"));
  EXPECT_FALSE(registry.Query(RegistryHive::CurrentUser, "Software\\None", "x"));
}

TEST_F(RegistryTest, BothViewsOfTheMachineAreLookedInto) {
  if (!PutText(HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY, L"C:\\32")) {
    GTEST_SKIP() << "this user may not write the machine's part";
  }
  EXPECT_EQ(Query(RegistryHive::LocalMachine), RegistryValue(std::string("C:\\32\0", 6)));

  PutText(HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY, L"C:\\64");
  EXPECT_EQ(Query(RegistryHive::LocalMachine), RegistryValue(std::string("C:\\64\0", 6)));
}

TEST_F(RegistryTest, APathOfTheRegistryMustLeadSomewhere) {
  const TempFolder folder;
  folder.Write(PathOf("Spiele für €/x"), "");
  const std::string path = TextOf(folder.Path() / PathOf("Spiele für €"));

  const auto real = registry.RealPath(path);

  ASSERT_TRUE(real);
  EXPECT_TRUE(std::filesystem::equivalent(PathOf(*real), PathOf(path)));
  EXPECT_FALSE(registry.RealPath(path + "\\none"));
  EXPECT_FALSE(registry.RealPath(""));
}

}  // namespace
}  // namespace orrerix
