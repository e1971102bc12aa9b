// SPDX-License-Identifier: MIT
// The hash SHA-256 (FIPS 180-4).
#pragma once

#include <string>
#include <string_view>

namespace orrerix::check {

// 64 hexadecimal digits in lower case.
std::string Sha256Hex(std::string_view bytes);

}  // namespace orrerix::check
