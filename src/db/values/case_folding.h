// SPDX-License-Identifier: MIT
// Simple case mapping of single code points, independent of the locale.
#pragma once

namespace orrerix {

// The simple upper-case (lower-case) form of a code point, itself if it has none. The data are
// the one-to-one mappings of the Unicode character database.
char32_t SimpleUpperCase(char32_t codePoint);
char32_t SimpleLowerCase(char32_t codePoint);

}  // namespace orrerix
