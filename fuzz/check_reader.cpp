// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <string>

#include "check/files/ini_file.h"
#include "check/rules/card_markup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix::check;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  IsWellFormedCard(bytes);
  const DiskFile disk{Layer::Game, "a.ini", "a.ini"};
  NameTable names;
  IniFile file(disk, 0);
  file.ReadBytes(bytes, names);
  file.CutSections([](const IniSection&) { return true; });
  for (const IniSection& section : file.Sections()) {
    for (const IniEntry& entry : section.Entries) {
      for (const std::string_view value : entry.Values()) file.ColumnOf(value);
      file.SectionAt(entry.Line);
    }
  }
  return 0;
}
