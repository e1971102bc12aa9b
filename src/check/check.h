// SPDX-License-Identifier: MIT
// The check of a game folder: finds mistakes in its data files and resource libraries. Reads only.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "check/finding.h"

namespace orrerix::check {

struct CheckOptions {
  std::filesystem::path Game;
  // The unmodified game beneath a mod that holds only its own files. The same folder as `Game`
  // says that nothing is missing on purpose.
  std::optional<std::filesystem::path> Base;
  std::set<std::string> Only;      // rules; empty: all
  std::set<std::string> Skip;      // rules
  std::set<std::string> Baseline;  // fingerprints of findings that are known already
};

struct CheckAnswer {
  // In the order of reports, with those that are suppressed or in the baseline.
  std::vector<Finding> Findings;
  // Paths of expected files that are not there, in lower case with "/", sorted.
  std::vector<std::string> Absent;
  // Fingerprints of the baseline that no finding has. Each counts once.
  std::set<std::string> Gone;
  bool Cancelled = false;  // the rest is empty then

  // Findings that count.
  std::size_t Count(Severity severity) const;
};

// The game cannot be checked at all. The text is one line that names the folder or the file.
struct CannotCheck : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Called again and again while a check runs, with the number of steps that are done: each file is
// a step of reading and one or more of checking. False cancels the check.
using CheckProgress = std::function<bool(std::size_t steps)>;

// Checks a game folder. Throws CannotCheck if it, or the base, has no usable EXE/freelancer.ini.
// Whatever else is wrong with a file becomes a finding.
[[nodiscard]] CheckAnswer RunCheck(const CheckOptions& options, const CheckProgress& progress = {});

}  // namespace orrerix::check
