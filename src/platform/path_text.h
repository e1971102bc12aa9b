// SPDX-License-Identifier: MIT
// Paths and their texts. Inside the program every text is UTF-8; the C++ library takes a narrow
// text for one of the system's code page on Windows.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orrerix {

// The path that a UTF-8 text names. On Windows bytes that are no UTF-8 become U+FFFD, elsewhere a
// path is bytes and takes them as they are.
std::filesystem::path PathOf(std::string_view text);

// The path's text in UTF-8, with the system's own separators. On Windows half a surrogate pair
// becomes U+FFFD.
std::string TextOf(const std::filesystem::path& path);

// The form in which the system takes a path of any length: on Windows one of 248 and more
// characters is made absolute and gets the prefix "\\?\". Others, and all on other systems, stay as
// they are.
std::filesystem::path SystemPath(const std::filesystem::path& path);

// Whether the system finds a file whatever the case of its name.
#ifdef _WIN32
inline constexpr bool kFileNamesIgnoreCase = true;
#else
inline constexpr bool kFileNamesIgnoreCase = false;
#endif

// Whether a program waits for another one each time that it opens or closes a file: on Windows for
// a virus scanner, under Wine for its server.
inline constexpr bool kOpeningWaits = kFileNamesIgnoreCase;

}  // namespace orrerix
