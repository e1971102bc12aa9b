// SPDX-License-Identifier: MIT
// Resource libraries: DLL files that hold nothing but texts.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "demo/format/resource_section.h"

namespace orrerix {

enum class PeImage { Bits32, Bits64 };

// Builds a resource library: a DLL image that holds nothing but a section of resources. No code, no
// imports; it loads as a data file only. Adding the same number in the same language again
// replaces the earlier text.
class ResourceLibraryWriter {
 public:
  static constexpr std::uint32_t kNeutral = 0;
  static constexpr std::uint32_t kEnglishUs = 0x0409;
  static constexpr std::uint32_t kStringType = 6;
  static constexpr std::uint32_t kHtmlType = 23;

  // A text of the string table, given as UTF-8. Throws std::length_error above 65,535 units. An
  // empty text is stored as an absent one, as the format has no other way.
  void AddString(std::uint16_t number, std::string_view utf8, std::uint32_t language = kEnglishUs);

  // An info card, given as UTF-8 and stored as UTF-16 after a byte order mark.
  void AddCard(std::uint16_t number, std::string_view utf8, std::uint32_t language = kEnglishUs);

  // Raw bytes under any key, for instance a card with an odd length or without a mark. Raw bytes
  // for a block of the string table stand in place of the texts of that block.
  void AddRaw(const ResourceKey& key, std::string bytes);

  // The whole file. The same content gives the same bytes: no field holds a time.
  std::string Image(PeImage image = PeImage::Bits32) const;

 private:
  using Block = std::array<std::u16string, 16>;

  ResourceMap AllResources() const;

  std::map<std::pair<std::uint32_t, std::uint32_t>, Block> blocks_;
  ResourceMap raw_;
};

// A library of plain texts and cards in US English, both UTF-8, keyed by resource number.
std::string ResourceLibraryImage(const std::map<std::uint16_t, std::string>& strings,
                                 const std::map<std::uint16_t, std::string>& cards);

}  // namespace orrerix
