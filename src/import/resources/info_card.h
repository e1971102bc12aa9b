// SPDX-License-Identifier: MIT
// From the markup of an info card to plain text.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// Removes blanks on both sides, and all characters below code 14 from the end, with the blanks
// before them.
std::string_view CleanEnd(std::string_view text);

// Drops the first character (meant to be the byte-order mark) and the XML prolog, turns <PARA/>
// into CR LF, strips tags and entities, blanks and tabs before line ends, and empty lines. Tags
// stay from the first ">" on that stands before the first "<"; entities likewise. No entity is
// decoded: "Smith &amp; Sons" loses its ampersand.
std::string InfoCardToText(std::string_view card);

}  // namespace orrerix
