// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace orrerix::demo {

// Code points of a UTF-8 text. Each byte that does not belong to a well-formed sequence becomes
// U+FFFD, so that no input is refused.
std::u32string CodePointsOf(std::string_view utf8);

// UTF-16 units of a UTF-8 text, with surrogate pairs above U+FFFF and no byte order mark.
std::u16string Utf16FromUtf8(std::string_view utf8);

// Windows-1252 bytes of a UTF-8 text, as the game's ini files hold them. A character that the
// code page lacks becomes "?".
std::string Windows1252FromUtf8(std::string_view utf8);

}  // namespace orrerix::demo
