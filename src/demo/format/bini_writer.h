// SPDX-License-Identifier: MIT
// Packed ini files, as the game ships them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orrerix {

// One value of a packed ini file; a text is in Windows-1252.
using PackedValue = std::variant<std::int32_t, float, std::string>;

struct PackedEntry {
  std::string Key;
  std::vector<PackedValue> Values;
};

struct PackedSection {
  std::string Name;
  std::vector<PackedEntry> Entries;
};

// The sections of an ini text in Windows-1252. Comments go; values split at commas and lose the
// blanks around them. A value becomes an integer or a real only if it is nothing but one and an
// integer fits 32 bits: "007", "+5" and "1e3" stay texts. Lines before the first header are
// dropped.
std::vector<PackedSection> SectionsOfIni(std::string_view ini);

// The packed form. The string table holds section names and keys first, in order of appearance,
// since their offsets have 16 bits only; each text is stored once. Throws std::length_error where a
// count or an offset does not fit its field.
std::string PackSections(const std::vector<PackedSection>& sections);

// Both in one step.
std::string PackIni(std::string_view ini);

}  // namespace orrerix
