// SPDX-License-Identifier: MIT
// Bytes of text files: which character set they are in, and what does not belong there.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orrerix::check {

bool IsAscii(std::string_view bytes);

// Whether the bytes are well-formed UTF-8 throughout.
bool IsUtf8(std::string_view bytes);

// The place of the first NUL or U+FFFD.
std::optional<std::size_t> BadUtf8Byte(std::string_view bytes);

// The place of the first NUL or byte that Windows-1252 leaves open.
std::optional<std::size_t> BadWindows1252Byte(std::string_view bytes);

// The number of the line that holds a byte, from 1. A line ends at CR LF, LF or CR.
int LineOfByte(std::string_view bytes, std::size_t at);

// Without the blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view text);

// Whether a comment holds "check:", in any case.
bool MayAddressCheck(std::string_view comment);

}  // namespace orrerix::check
