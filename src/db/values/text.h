// SPDX-License-Identifier: MIT
// Text as the database engine and the game see it: UTF-8, measured in characters.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace orrerix {

// Each character in its simple upper-case (lower-case) form, one for one: letters without such a
// form, "ß" among them, stay. Bytes that are no UTF-8 stay as they are.
std::string Ucase(std::string_view text);
std::string Lcase(std::string_view text);

// How many characters at the start of a text are ASCII.
std::size_t AsciiLength(std::string_view text);

// ASCII letters folded to lower case; the form in which the engine compares texts.
std::string FoldAscii(std::string_view text);
void AppendFolded(std::string& folded, std::string_view text);

// Whether two texts are equal when the case of ASCII letters is ignored.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

// The same for texts of one length that are equal in this sense, or that agree so up to a NUL.
std::size_t HashIgnoringCase(std::string_view text);

// Below 0, 0 or above 0: how the engine orders two texts, without regard to the case of ASCII
// letters. Texts that agree up to a NUL are ordered by their lengths.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// Lets a container of texts be searched for a view of one.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>()(text);
  }
};

// Number of characters.
std::size_t Len(std::string_view text);

// The first (last) characters, all of them if there are no more than `count`.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);

// Removes blanks (character 32 only) from both ends.
std::string_view Trim(std::string_view text);

// Whether `text` holds `part`, case and all.
bool Contains(std::string_view text, std::string_view part);

// Appends a code point as UTF-8. A number that is no code point becomes "?".
void AppendUtf8(std::string& text, char32_t codePoint);

// Decodes the code point that starts at `at` and moves `at` past it. A byte that starts no valid
// sequence comes back as itself, so that every text can be walked to its end.
char32_t NextCodePoint(std::string_view text, std::size_t& at);

}  // namespace orrerix
