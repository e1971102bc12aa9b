// SPDX-License-Identifier: MIT
// The markup of info cards.
#pragma once

#include <string_view>

namespace orrerix::check {

// Whether a card (UTF-8) is one element between an optional byte order mark and XML declaration
// and an end of characters up to U+0020: tags paired in order, attributes quoted, no entities but
// amp, lt, gt, quot, apos and numbers, no control characters but tab and line ends.
bool IsWellFormedCard(std::string_view text);

}  // namespace orrerix::check
