// SPDX-License-Identifier: MIT
// Operations on whole blocks of ini text, as raw bytes of one character each.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// The value of a key: what stands after the first place where the text ends in the key and "=",
// up to the next CR, trimmed of blanks; empty if there is none. "key =" is looked for before
// "key=", without regard to case, and one character after its equals sign is skipped. The search is
// not bound to the start of a line: asking for "type" finds a line of "hp_type", too.
std::string_view GetINIValue(std::string_view text, std::string_view key);

// The same in a text whose ASCII upper-case form is at hand; `key` in upper case.
std::string_view FindINIValue(std::string_view text, std::string_view upperText,
                              std::string_view upperKey);

// The same search by one who knows where the "=" stand: they are handed over in their order until
// the search ends.
class INIValueSearch {
 public:
  INIValueSearch(std::string_view text, std::string_view upperText, std::string_view upperKey)
      : text_(text), upperText_(upperText), upperKey_(upperKey) {}

  // Looks at one "=". True if no other can give the value.
  bool EndsAt(std::size_t sign);
  std::string_view Value() const;

 private:
  std::string_view text_;
  std::string_view upperText_;
  std::string_view upperKey_;
  std::string_view value_;
  bool hasTight_ = false;
};

// ASCII letters in upper case; all other bytes stay.
std::string UpperAscii(std::string_view text);

// The first place of a text in another; npos if there is none.
std::size_t FindText(std::string_view text, std::string_view part);

// Removes comments: from each ";" up to the next CR, or to the end if no CR follows.
std::string RemoveComments(std::string_view text);

// Makes all line ends CR LF and shrinks each run of blanks before "=" to one blank. The first and
// the last character are not examined, so a lone LF or CR stays there.
std::string FixCrLf(std::string text);

// A block from its "[" on, without comments and with line ends and blanks as FixCrLf leaves them.
// It is copied only if something of that is to be changed; else the block must outlive this.
class CleanBlock {
 public:
  explicit CleanBlock(std::string_view block);
  CleanBlock(const CleanBlock&) = delete;
  CleanBlock& operator=(const CleanBlock&) = delete;

  std::string_view Text() const { return text_; }

 private:
  std::string copy_;
  std::string_view text_;
};

}  // namespace orrerix
