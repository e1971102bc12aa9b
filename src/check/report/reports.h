// SPDX-License-Identifier: MIT
// What a check found, as text for people and as JSON and SARIF for programs.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "check/check.h"

namespace orrerix::check {

// The folders as the user named them.
struct CheckedFolders {
  std::string Game;
  std::optional<std::string> Base;
};

// A line for each finding that counts, a table of the rules and a line of sums; that one alone if
// it is to be quiet.
std::string TextReport(const CheckAnswer& answer, const CheckedFolders& folders, bool isQuiet);

std::string JsonReport(const CheckAnswer& answer, const CheckedFolders& folders);

// SARIF 2.1.0, with the findings that are suppressed or in the baseline.
std::string SarifReport(const CheckAnswer& answer, const CheckedFolders& folders);

// How many findings count for each rule; rules without any are left out.
std::map<std::string, std::size_t> CountByRule(const CheckAnswer& answer);

// How many findings are in a state.
std::size_t CountOf(const CheckAnswer& answer, FindingState state);

}  // namespace orrerix::check
