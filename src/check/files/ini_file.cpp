// SPDX-License-Identifier: MIT
#include "check/files/ini_file.h"

#include <algorithm>

#include "check/files/text_bytes.h"
#include "import/ini/packed_ini.h"
#include "import/resources/windows1252.h"

namespace orrerix::check {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool HasUtf16Mark(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

// First entry with the lead key of a section.
const IniEntry* LeadIn(const IniSection& section, std::string_view leadKey) {
  for (const IniEntry& entry : section.Entries) {
    if (IsSameName(entry.Key, leadKey)) return &entry;
  }
  return nullptr;
}

}  // namespace

std::string_view LeadKeyOf(std::string_view foldedSection) {
  if (foldedSection == "basefaction") return "faction";
  if (foldedSection == "basegood") return "base";
  if (foldedSection == "fuse") return "name";
  return "nickname";
}

std::string_view IniEntry::At(std::size_t n) const {
  std::string_view rest = Value;
  for (; n > 1; --n) {
    const std::size_t comma = rest.find(',');
    if (comma == std::string_view::npos) return {};
    rest.remove_prefix(comma + 1);
  }
  return TrimBlanks(rest.substr(0, rest.find(',')));
}

std::vector<std::string_view> IniEntry::Values() const {
  std::vector<std::string_view> values;
  std::string_view rest = Value;
  while (true) {
    const std::size_t comma = rest.find(',');
    values.push_back(TrimBlanks(rest.substr(0, comma)));
    if (comma == std::string_view::npos) return values;
    rest.remove_prefix(comma + 1);
  }
}

std::string_view IniSection::Nickname() const {
  return Lead == nullptr ? std::string_view() : Lead->At(1);
}

const IniEntry* IniSection::First(NameId key) const {
  for (const IniEntry& entry : Entries) {
    if (entry.Name == key) return &entry;
  }
  return nullptr;
}

void IniFile::Read(const FileTree& tree, NameTable& names) {
  auto bytes = tree.ReadBytes(*disk_);
  if (!bytes) {
    trouble_ = IniTrouble::Unreadable;
    return;
  }
  ReadBytes(std::move(*bytes), names);
}

void IniFile::ReadBytes(std::string bytes, NameTable& names) {
  Decode(std::move(bytes));
  if (IsUsable()) Parse(names);
}

void IniFile::Decode(std::string bytes) {
  if (HasUtf16Mark(bytes)) {
    trouble_ = IniTrouble::Utf16;
    return;
  }
  const bool isPacked = IsPackedIni(bytes);
  if (isPacked) {
    auto unpacked = UnpackIni(bytes);
    if (!unpacked) {
      trouble_ = IniTrouble::DamagedPacked;
      return;
    }
    bytes = std::move(*unpacked);
  }
  const bool isUtf8 = isPacked ? IsAscii(bytes) : IsUtf8(bytes);
  if (const auto bad = isUtf8 ? BadUtf8Byte(bytes) : BadWindows1252Byte(bytes)) {
    badBytesLine_ = LineOfByte(bytes, *bad);
  }
  if (!isUtf8) {
    text_ = FromWindows1252(bytes);
    return;
  }
  text_ = std::move(bytes);
  if (text_.starts_with(kUtf8Mark)) text_.erase(0, kUtf8Mark.size());
}

void IniFile::Parse(NameTable& names) {
  std::string_view rest = text_;
  for (int number = 1; !rest.empty(); ++number) {
    const std::size_t end = rest.find_first_of("\r\n");
    TakeLine(rest.substr(0, end), number, names);
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + (rest.substr(end).starts_with("\r\n") ? 2 : 1));
  }
  CloseSections();
}

void IniFile::TakeLine(std::string_view line, int number, NameTable& names) {
  const std::size_t semicolon = line.find(';');
  const std::string_view content = TrimBlanks(line.substr(0, semicolon));
  if (semicolon != std::string_view::npos) {
    TakeComment(line.substr(semicolon + 1), number, content.empty());
  }
  if (content.empty()) return;
  for (; pendingComments_ > 0; --pendingComments_) {
    comments_[comments_.size() - pendingComments_].Line = number;
  }
  if (content.starts_with('[')) {
    OpenSection(content, number, names);
  } else {
    TakeEntry(content, number, names);
  }
}

void IniFile::TakeComment(std::string_view comment, int number, bool isAlone) {
  if (comment.find(':') == std::string_view::npos || !MayAddressCheck(comment)) return;
  if (isAlone) {
    comments_.push_back({comment, 0});
    ++pendingComments_;
  } else {
    // Those that wait for this line stand at the end.
    comments_.insert(comments_.end() - static_cast<std::ptrdiff_t>(pendingComments_),
                     {comment, number});
  }
}

void IniFile::OpenSection(std::string_view content, int number, NameTable& names) {
  const std::size_t end = content.find(']');
  IniSection section;
  section.File = this;
  section.Name = TrimBlanks(content.substr(1, end == std::string_view::npos ? end : end - 1));
  section.Id = names.Intern(section.Name);
  section.Line = number;
  section.HeaderLine = number;
  section.IsClosed = end != std::string_view::npos;
  sections_.push_back(section);
  firstEntries_.push_back(entries_.size());
}

void IniFile::TakeEntry(std::string_view content, int number, NameTable& names) {
  const std::size_t equals = content.find('=');
  IniEntry entry;
  entry.Key = TrimBlanks(content.substr(0, equals));
  if (equals != std::string_view::npos) entry.Value = TrimBlanks(content.substr(equals + 1));
  entry.Line = number;
  if (sections_.empty()) {
    if (!earlyText_) earlyText_ = entry;
  } else if (equals == std::string_view::npos) {
    bareLines_.push_back({content, number});
  } else {
    entry.Name = names.Intern(entry.Key);
    entries_.push_back(entry);
  }
}

void IniFile::CloseSections() {
  entries_.shrink_to_fit();
  firstEntries_.push_back(entries_.size());
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    IniSection& section = sections_[i];
    section.Entries =
        std::span(entries_).subspan(firstEntries_[i], firstEntries_[i + 1] - firstEntries_[i]);
    section.Lead = LeadIn(section, LeadKeyOf(FoldName(section.Name)));
  }
  firstEntries_ = {};
}

void IniFile::CutSections(const std::function<bool(const IniSection&)>& isToCut) {
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    const IniSection whole = sections_[i];
    if (whole.Lead == nullptr || !isToCut(whole)) continue;
    const auto after = static_cast<std::size_t>(whole.Lead - whole.Entries.data()) + 1;
    const auto rest = whole.Entries.subspan(after);
    const auto second = std::find_if(rest.begin(), rest.end(), [&whole](const IniEntry& entry) {
      return entry.Name == whole.Lead->Name;
    });
    if (second == rest.end()) continue;
    const auto kept = after + static_cast<std::size_t>(second - rest.begin());
    IniSection part = whole;
    part.Line = second->Line;
    part.IsCut = true;
    part.Entries = whole.Entries.subspan(kept);
    part.Lead = part.Entries.data();
    sections_[i].Entries = whole.Entries.first(kept);
    sections_.insert(sections_.begin() + static_cast<std::ptrdiff_t>(i) + 1, part);
  }
}

const IniSection* IniFile::SectionAt(int line) const {
  const auto after =
      std::upper_bound(sections_.begin(), sections_.end(), line,
                       [](int wanted, const IniSection& section) { return wanted < section.Line; });
  return after == sections_.begin() ? nullptr : &*(after - 1);
}

int IniFile::ColumnOf(std::string_view token) const {
  if (token.data() < text_.data() || token.data() > text_.data() + text_.size()) return 1;
  const std::string_view before(text_.data(),
                                static_cast<std::size_t>(token.data() - text_.data()));
  const std::size_t lineEnd = before.find_last_of("\r\n");
  return static_cast<int>(
             Len(lineEnd == std::string_view::npos ? before : before.substr(lineEnd + 1))) +
         1;
}

}  // namespace orrerix::check
