// SPDX-License-Identifier: MIT
#include "platform/shortcut.h"

#include <array>
#include <string>

#include <gtest/gtest.h>
#include <objbase.h>
#include <shlobj.h>

#include "platform/path_text.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

// Where a shortcut leads, as the system reads it.
fs::path TargetOf(const fs::path& link) {
  std::array<wchar_t, 1024> target{};
  IShellLinkW* shortcut = nullptr;
  IPersistFile* file = nullptr;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                   reinterpret_cast<void**>(&shortcut));
  shortcut->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
  if (SUCCEEDED(file->Load(link.c_str(), STGM_READ))) {
    shortcut->GetPath(target.data(), static_cast<int>(target.size()), nullptr, 0);
  }
  file->Release();
  shortcut->Release();
  CoUninitialize();
  return target.data();
}

TEST(WriteShortcut, LeadsToItsTarget) {
  const TempFolder folder;
  const fs::path target = folder.Write(PathOf("Spiele für €/orrerix.exe"), "x");
  const fs::path link = folder.Path() / "FL Orrerix v1.7.lnk";

  EXPECT_TRUE(WriteShortcut(target, link));

  EXPECT_EQ(TargetOf(link), target);
}

TEST(WriteShortcut, ReplacesAnOlderOne) {
  const TempFolder folder;
  const fs::path link = folder.Path() / "a.lnk";
  const fs::path target = folder.Write("two.exe", "x");

  WriteShortcut(folder.Write("one.exe", "x"), link);
  WriteShortcut(target, link);

  EXPECT_EQ(TargetOf(link), target);
}

TEST(WriteShortcut, TellsThatItCannotBeWritten) {
  const TempFolder folder;

  EXPECT_FALSE(WriteShortcut("C:\\b.exe", folder.Path() / "none" / "a.lnk"));
}

}  // namespace
}  // namespace orrerix
