// SPDX-License-Identifier: MIT
// The character set of the game's text files.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// UTF-8 of Windows-1252 bytes. The five bytes that the character set leaves open stand for the
// control characters of the same number.
std::string FromWindows1252(std::string_view bytes);

// The same without a copy where none is needed.
class Windows1252Reader {
 public:
  // The bytes themselves if they are ASCII, else a text that is good until the next call.
  std::string_view Utf8(std::string_view bytes);

 private:
  std::string converted_;
};

// Whether the character set has a character for this code point.
bool IsInWindows1252(char32_t codePoint);

// UTF-8 as Windows-1252 bytes; a character that it lacks becomes "?".
std::string ToWindows1252(std::string_view text);

}  // namespace orrerix
