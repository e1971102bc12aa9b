// SPDX-License-Identifier: MIT
// A block's text that is used up from its front while repeating keys are read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrerix {

// A text, which must outlive this, with its upper-case form. Positions count from the front of what
// is left.
class BlockText {
 public:
  explicit BlockText(std::string_view text);

  std::string_view Text() const { return text_.substr(begin_); }
  std::size_t Size() const { return text_.size() - begin_; }
  bool Empty() const { return Size() == 0; }

  // The first place of a text in upper case, looked for without regard to case.
  std::optional<std::size_t> Find(std::string_view upperPart) const;
  // The first place of a text as it stands.
  std::optional<std::size_t> FindExact(std::string_view part) const;

  bool Holds(std::string_view upperPart) const { return Find(upperPart).has_value(); }
  bool StartsWith(std::string_view upperPart) const;

  // The value of a key, given in upper case and ending in no blank (see ini_text.h for how it is
  // found).
  std::string_view Value(std::string_view upperKey) const;

  // Removes characters from the front, at most all.
  void Cut(std::size_t characters);

 private:
  std::string_view Upper() const { return std::string_view(upper_).substr(begin_); }

  std::string_view text_;
  std::string upper_;
  std::size_t begin_ = 0;
  // Places of all "=" in the whole text, the last letter of the key before each, and which of them
  // is the first in what is left.
  std::vector<std::size_t> signs_;
  std::string keyEnds_;
  std::size_t nextSign_ = 0;
};

// The two sides of the first comma. `Found` says whether there is one; without it all is in front.
struct CommaCut {
  std::string_view Before;
  std::string_view After;
  bool Found = false;
};
CommaCut CutAtComma(std::string_view text);

// The part before (after) the first comma; without a comma the failure 5 is thrown.
std::string_view RequireBeforeComma(std::string_view text);
std::string_view RequireAfterComma(std::string_view text);

}  // namespace orrerix
