// SPDX-License-Identifier: MIT
// The texts of a resource library (a PE file), read as data: no code of it runs.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orrerix {

// Reads the resource directory of a library's bytes, which must outlive it. No number in the file
// is trusted: every offset and size is checked, and directories that loop or are not three levels
// deep make the file no library.
class ResourceLibrary {
 public:
  // Nothing if the bytes are no library with a sound header and directory. A library without
  // resources is one without texts.
  static std::optional<ResourceLibrary> Open(std::string_view bytes);

  // Raw data of the info cards (type 23) with the numbers 1 to 65535, ascending. Of several
  // languages the neutral one counts, else 0x0409, else the first.
  const std::map<std::uint32_t, std::string_view>& Cards() const { return cards_; }

  // The strings (type 6) with the numbers 1 to 65535 in UTF-8, ascending, as the game's system
  // hands them over: at most 1,023 characters, "?" for what Windows-1252 lacks. Absent and empty
  // strings, and those that are cut short by the file's end, are not there.
  std::map<std::uint32_t, std::string> Strings() const;

 private:
  std::map<std::uint32_t, std::string_view> cards_;
  std::map<std::uint32_t, std::string_view> blocks_;  // of 16 strings, by their name in the tree
};

// The text of UTF-16 bytes, little-endian; half of a surrogate pair becomes "?", and a last odd
// byte a character of its own.
std::string FromUtf16(std::string_view bytes);

}  // namespace orrerix
