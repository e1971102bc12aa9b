// SPDX-License-Identifier: MIT
// A text or packed ini file as tokens that know their places.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "check/files/file_tree.h"
#include "check/files/names.h"

namespace orrerix::check {

class IniFile;

// "key = value" under a header. The views point into the file's text.
struct IniEntry {
  std::string_view Key;
  std::string_view Value;  // all of it
  NameId Name = kUnknownName;
  int Line = 0;

  // The n-th of the values between commas, from 1; empty if there are fewer.
  std::string_view At(std::size_t n) const;
  // All values, at least one.
  std::vector<std::string_view> Values() const;
};

// A header with the entries below it, or the part of them that a second lead key cuts off.
struct IniSection {
  const IniFile* File = nullptr;
  std::string_view Name;
  NameId Id = kUnknownName;
  int Line = 0;        // of the header; of the second lead key in a part that was cut off
  int HeaderLine = 0;  // of the header, also in a part that was cut off
  bool IsCut = false;  // does not start at its header
  bool IsClosed = true;
  std::span<const IniEntry> Entries;
  const IniEntry* Lead = nullptr;  // first entry with the lead key
  int MBase = 0;                   // in files of bases' people: number of the last MBase above

  // The value 1 of the lead key as written; empty without one.
  std::string_view Nickname() const;
  // The first entry with a key; null if there is none.
  const IniEntry* First(NameId key) const;
};

// A line that is neither a header nor holds "=".
struct BareLine {
  std::string_view Text;
  int Line = 0;
};

// A comment that speaks to the check.
struct CheckComment {
  std::string_view Text;  // after the ";"
  int Line = 0;           // of the line that it is about; 0 if none follows
};

enum class IniTrouble { None, Unreadable, DamagedPacked, Utf16 };

// Reads the bytes of a file: text in UTF-8 (also with a mark) if it is valid throughout, else in
// Windows-1252; packed files as the lines of their text. A file in trouble has no sections.
class IniFile {
 public:
  IniFile(const DiskFile& disk, int number) : disk_(&disk), number_(number) {}
  IniFile(const IniFile&) = delete;
  IniFile& operator=(const IniFile&) = delete;

  // Reads the file from disk.
  void Read(const FileTree& tree, NameTable& names);
  // Takes bytes for the file's.
  void ReadBytes(std::string bytes, NameTable& names);

  // Cuts the sections for which the test is true in two at each further lead key. Repeating it
  // with another test cuts more sections. Entries stay where they are.
  void CutSections(const std::function<bool(const IniSection&)>& isToCut);

  const DiskFile& Disk() const { return *disk_; }
  int Number() const { return number_; }  // in the order of reading
  IniTrouble Trouble() const { return trouble_; }
  bool IsUsable() const { return trouble_ == IniTrouble::None; }

  const std::vector<IniSection>& Sections() const { return sections_; }
  std::vector<IniSection>& Sections() { return sections_; }
  // The section that a line belongs to; null above the first header.
  const IniSection* SectionAt(int line) const;

  // Lines under a header that lack "=".
  const std::vector<BareLine>& BareLines() const { return bareLines_; }
  // The first line with text above all headers.
  const std::optional<IniEntry>& EarlyText() const { return earlyText_; }
  // The first line with bytes that no text has.
  const std::optional<int>& BadBytesLine() const { return badBytesLine_; }
  const std::vector<CheckComment>& CheckComments() const { return comments_; }

  // The column of a token of this file, in characters from 1.
  int ColumnOf(std::string_view token) const;

 private:
  // Makes the bytes the file's text; nothing if they are no text.
  void Decode(std::string bytes);
  void Parse(NameTable& names);
  void TakeLine(std::string_view line, int number, NameTable& names);
  void OpenSection(std::string_view content, int number, NameTable& names);
  void TakeEntry(std::string_view content, int number, NameTable& names);
  void TakeComment(std::string_view comment, int number, bool isAlone);
  void CloseSections();

  const DiskFile* disk_;
  int number_;
  IniTrouble trouble_ = IniTrouble::None;
  std::string text_;
  std::vector<IniEntry> entries_;
  std::vector<IniSection> sections_;
  std::vector<BareLine> bareLines_;
  std::optional<IniEntry> earlyText_;
  std::optional<int> badBytesLine_;
  std::vector<CheckComment> comments_;
  std::vector<std::size_t> firstEntries_;  // of each section, while parsing
  std::size_t pendingComments_ = 0;        // at the end of comments_, not yet about a line
};

// The key whose first value names a section: "nickname", in some sections another.
std::string_view LeadKeyOf(std::string_view foldedSection);

}  // namespace orrerix::check
