// SPDX-License-Identifier: MIT
#include "check/suppressions.h"

#include <algorithm>
#include <deque>
#include <optional>

#include "check/files/text_bytes.h"

namespace orrerix::check {
namespace {

constexpr std::string_view kAddress = "check:";
constexpr std::string_view kIgnoreFile = "ignore-file";
constexpr std::string_view kIgnore = "ignore";
constexpr std::string_view kBetweenRules = ", \t";

// What follows a word at the start of a text; nothing if the text starts otherwise.
std::optional<std::string_view> AfterWord(std::string_view text, std::string_view word) {
  if (!IsSameName(text.substr(0, word.size()), word)) return std::nullopt;
  const std::string_view rest = text.substr(word.size());
  if (!rest.empty() && kBetweenRules.find(rest.front()) == std::string_view::npos) {
    return std::nullopt;
  }
  return rest;
}

// The files that findings lie in, with what their comments hide.
class SuppressionIndex {
 public:
  explicit SuppressionIndex(const GameFiles& files) : files_(files) {
    for (const IniFile* file : files.AllInis()) {
      inis_.emplace(std::pair(file->Disk().Layer, file->Disk().Path), file);
    }
  }

  bool Hides(const Finding& finding) {
    const std::pair place(finding.Layer, finding.File);
    auto known = suppressions_.find(place);
    if (known == suppressions_.end()) {
      const IniFile* file = FileAt(place);
      known = suppressions_
                  .emplace(place,
                           file == nullptr ? std::nullopt : std::optional(FileSuppressions(*file)))
                  .first;
    }
    return known->second && known->second->Hides(finding);
  }

 private:
  using Place = std::pair<Layer, std::string>;

  const IniFile* FileAt(const Place& place) {
    if (const auto known = inis_.find(place); known != inis_.end()) return known->second;
    const auto& all = files_.Tree().Files();
    const auto disk = std::find_if(all.begin(), all.end(), [&place](const DiskFile& file) {
      return file.Layer == place.first && file.Path == place.second;
    });
    if (disk == all.end() || !disk->Key.ends_with(".ini")) return nullptr;
    IniFile& file = unread_.emplace_back(*disk, 0);
    file.Read(files_.Tree(), names_);
    return &file;
  }

  const GameFiles& files_;
  std::map<Place, const IniFile*> inis_;
  std::deque<IniFile> unread_;
  NameTable names_;
  std::map<Place, std::optional<FileSuppressions>> suppressions_;
};

}  // namespace

FileSuppressions::FileSuppressions(const IniFile& file) : file_(file) {
  for (const CheckComment& comment : file.CheckComments()) Take(comment);
}

void FileSuppressions::Take(const CheckComment& comment) {
  std::string_view rest = comment.Text;
  while (true) {
    const std::size_t end = rest.find(';');
    const std::string_view part = TrimBlanks(rest.substr(0, end));
    if (IsSameName(part.substr(0, kAddress.size()), kAddress)) {
      const std::string_view order = TrimBlanks(part.substr(kAddress.size()));
      if (const auto ofFile = AfterWord(order, kIgnoreFile)) {
        ofFile_.push_back(ParseRules(*ofFile));
      } else if (const auto ofLine = AfterWord(order, kIgnore)) {
        ofLine_.emplace(comment.Line, ParseRules(*ofLine));
      }
    }
    if (end == std::string_view::npos) return;
    rest.remove_prefix(end + 1);
  }
}

FileSuppressions::RuleList FileSuppressions::ParseRules(std::string_view text) {
  RuleList list;
  while (true) {
    const std::size_t begin = text.find_first_not_of(kBetweenRules);
    if (begin == std::string_view::npos) break;
    text.remove_prefix(begin);
    const std::size_t end = std::min(text.find_first_of(kBetweenRules), text.size());
    list.Rules.insert(FoldName(text.substr(0, end)));
    text.remove_prefix(end);
  }
  list.IsAll = list.Rules.empty();
  return list;
}

bool FileSuppressions::Hides(const Finding& finding) const {
  for (const RuleList& list : ofFile_) {
    if (list.Holds(finding.Rule)) return true;
  }
  const IniSection* section = file_.SectionAt(finding.Line);
  for (const int line : {finding.Line, section == nullptr ? 0 : section->HeaderLine}) {
    if (line == 0) continue;
    const auto [begin, end] = ofLine_.equal_range(line);
    for (auto each = begin; each != end; ++each) {
      if (each->second.Holds(finding.Rule)) return true;
    }
  }
  return false;
}

std::vector<Finding> WithSuppressions(std::vector<Finding> findings, const GameFiles& files) {
  SuppressionIndex index(files);
  for (Finding& finding : findings) {
    if (index.Hides(finding)) finding.State = FindingState::Suppressed;
  }
  return findings;
}

}  // namespace orrerix::check
