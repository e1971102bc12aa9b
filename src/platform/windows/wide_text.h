// SPDX-License-Identifier: MIT
// Between the program's UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// Bytes that are no UTF-8 become U+FFFD.
std::wstring WideOf(std::string_view text);

// Half a surrogate pair becomes U+FFFD.
std::string NarrowOf(std::wstring_view text);

}  // namespace orrerix
