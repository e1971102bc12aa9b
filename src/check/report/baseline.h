// SPDX-License-Identifier: MIT
// Findings that are known already.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "check/check.h"

namespace orrerix::check {

struct BaselineEntry {
  std::string Fingerprint;
  std::string Rule;
  std::string File;
};

// Reads the text of a baseline. Throws CannotCheck, naming `file`, if it is none.
std::vector<BaselineEntry> ParseBaseline(std::string_view text, const std::string& file);

// All findings that no comment suppresses, as the text of a baseline.
std::string BaselineText(const CheckAnswer& answer);

}  // namespace orrerix::check
