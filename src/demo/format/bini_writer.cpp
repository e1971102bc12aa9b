// SPDX-License-Identifier: MIT
#include "demo/format/bini_writer.h"

#include <bit>
#include <charconv>
#include <cstddef>
#include <map>
#include <stdexcept>

#include "demo/format/byte_writer.h"

namespace orrerix {
namespace {

constexpr std::uint32_t kFileHeaderSize = 12;

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// A whole number in its only spelling, so that packing it loses nothing.
bool IsPlainInteger(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return IsDigits(text) && (text.size() == 1 || text[0] != '0');
}

bool IsPlainReal(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos || !IsDigits(text.substr(point + 1))) return false;
  return IsPlainInteger(text.substr(0, point));
}

PackedValue ValueOf(std::string_view text) {
  const char* end = text.data() + text.size();
  if (IsPlainInteger(text)) {
    std::int32_t number = 0;
    if (std::from_chars(text.data(), end, number).ec == std::errc()) return number;
  } else if (IsPlainReal(text)) {
    float number = 0;
    if (std::from_chars(text.data(), end, number).ec == std::errc()) return number;
  }
  return std::string(text);
}

PackedEntry EntryOf(std::string_view line) {
  const std::size_t sign = line.find('=');
  PackedEntry entry{std::string(Trimmed(line.substr(0, sign))), {}};
  std::string_view rest = sign == std::string_view::npos ? "" : Trimmed(line.substr(sign + 1));
  while (!rest.empty()) {
    const std::size_t comma = rest.find(',');
    entry.Values.push_back(ValueOf(Trimmed(rest.substr(0, comma))));
    rest = comma == std::string_view::npos ? "" : rest.substr(comma + 1);
  }
  return entry;
}

void CheckLimit(std::size_t value, std::size_t limit, const char* what) {
  if (value > limit) throw std::length_error(what);
}

// The texts of a packed file, each once, by the offset from the start of the table.
class StringTable {
 public:
  std::uint32_t Add(const std::string& text) {
    const auto [place, isNew] = offsets_.try_emplace(text, bytes_.Size());
    if (isNew) {
      bytes_.Text(text);
      bytes_.U8(0);
    }
    return static_cast<std::uint32_t>(place->second);
  }

  std::uint32_t NameOffset(const std::string& name) {
    const std::uint32_t offset = Add(name);
    CheckLimit(offset, 0xFFFF, "section names and keys of a packed ini are too long");
    return offset;
  }

  const std::string& Bytes() const { return bytes_.Bytes(); }

 private:
  std::map<std::string, std::size_t> offsets_;
  demo::ByteWriter bytes_;
};

void AddNames(StringTable& table, const std::vector<PackedSection>& sections) {
  for (const PackedSection& section : sections) {
    table.NameOffset(section.Name);
    for (const PackedEntry& entry : section.Entries) table.NameOffset(entry.Key);
  }
}

void WriteValue(demo::ByteWriter& out, StringTable& table, const PackedValue& value) {
  out.U8(static_cast<std::uint32_t>(value.index() + 1));
  if (const auto* integer = std::get_if<std::int32_t>(&value)) {
    out.U32(static_cast<std::uint32_t>(*integer));
  } else if (const auto* real = std::get_if<float>(&value)) {
    out.U32(std::bit_cast<std::uint32_t>(*real));
  } else {
    out.U32(table.Add(std::get<std::string>(value)));
  }
}

void WriteSection(demo::ByteWriter& out, StringTable& table, const PackedSection& section) {
  CheckLimit(section.Entries.size(), 0xFFFF, "too many entries in a section of a packed ini");
  out.U16(table.NameOffset(section.Name));
  out.U16(static_cast<std::uint32_t>(section.Entries.size()));
  for (const PackedEntry& entry : section.Entries) {
    CheckLimit(entry.Values.size(), 0xFF, "too many values in an entry of a packed ini");
    out.U16(table.NameOffset(entry.Key));
    out.U8(static_cast<std::uint32_t>(entry.Values.size()));
    for (const PackedValue& value : entry.Values) WriteValue(out, table, value);
  }
}

}  // namespace

std::vector<PackedSection> SectionsOfIni(std::string_view ini) {
  std::vector<PackedSection> sections;
  while (!ini.empty()) {
    const std::size_t end = ini.find('\n');
    std::string_view line = ini.substr(0, end);
    ini = end == std::string_view::npos ? "" : ini.substr(end + 1);
    line = Trimmed(line.substr(0, line.find(';')));
    if (line.starts_with('[')) {
      sections.push_back({std::string(Trimmed(line.substr(1, line.find(']') - 1))), {}});
    } else if (!line.empty() && !sections.empty()) {
      sections.back().Entries.push_back(EntryOf(line));
    }
  }
  return sections;
}

std::string PackSections(const std::vector<PackedSection>& sections) {
  StringTable table;
  AddNames(table, sections);
  demo::ByteWriter body;
  for (const PackedSection& section : sections) WriteSection(body, table, section);
  demo::ByteWriter out;
  out.Text("BINI");
  out.U32(1);
  out.U32(kFileHeaderSize + static_cast<std::uint32_t>(body.Size()));
  out.Text(body.Bytes());
  out.Text(table.Bytes());
  return out.Bytes();
}

std::string PackIni(std::string_view ini) {
  return PackSections(SectionsOfIni(ini));
}

}  // namespace orrerix
