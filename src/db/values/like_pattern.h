// SPDX-License-Identifier: MIT
// The engine's own patterns.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace orrerix {

// A pattern made ready for many texts: "*" any run, "?" one character, "#" one digit, "[a-z]" one
// of a set, "[!a-z]" one outside it. The case of ASCII letters does not count.
class LikePattern {
 public:
  // Nothing for an invalid pattern: a "[" with no "]" after it, or a range from high to low.
  static std::optional<LikePattern> Compile(std::string_view pattern);

  bool Matches(std::string_view text) const;

 private:
  struct Range {
    char32_t First;
    char32_t Last;
  };

  // One place of a pattern: a run of any length, or one character out of a set.
  struct Place {
    bool AnyRun = false;
    bool AnyCharacter = false;
    bool Negated = false;
    std::vector<Range> Ranges;
    bool Fits(char32_t c) const;
  };

  static std::optional<Place> ReadSet(std::u32string_view set);

  std::vector<Place> places_;
};

}  // namespace orrerix
