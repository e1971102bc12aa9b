// SPDX-License-Identifier: MIT
#include "check/log_places.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>

#include "check/files/file_tree.h"
#include "check/files/ini_file.h"
#include "check/files/names.h"
#include "check/files/paths.h"
#include "db/values/text.h"

namespace orrerix::check {
namespace fs = std::filesystem;
namespace {

// What entries have in common that are about the same lines of a file.
struct Subject {
  const DiskFile* File = nullptr;
  LogKind Kind = LogKind::Other;
  std::string Section;
  std::string Nickname;
  std::string Key;

  auto operator<=>(const Subject&) const = default;
};

std::string Between(std::string_view text, std::string_view before, char after) {
  const std::size_t begin = text.find(before);
  if (begin == std::string_view::npos) return {};
  text.remove_prefix(begin + before.size());
  return std::string(text.substr(0, text.find(after)));
}

class PlaceFinder {
 public:
  explicit PlaceFinder(const fs::path& game) : game_(game.string()), tree_(game, std::nullopt) {}

  LogPlace Find(const LogEntry& entry, std::size_t place, std::size_t count) {
    const Subject subject = SubjectOf(entry);
    if (subject.File == nullptr) return {};
    const std::vector<int>& lines = LinesOf(subject);
    const std::size_t fromEnd = count - place;
    return {subject.File->Path, fromEnd > lines.size() ? 0 : lines[lines.size() - fromEnd]};
  }

  Subject SubjectOf(const LogEntry& entry) const {
    Subject subject{FileOf(entry), entry.Kind, Between(entry.Text, "\n[", ']'), entry.Nickname, {}};
    if (entry.Kind == LogKind::DoubleData) {
      subject.Key = Between(entry.Text, "DOUBLE-DATA for [", ']');
    }
    return subject;
  }

 private:
  const DiskFile* FileOf(const LogEntry& entry) const {
    std::string_view path = entry.File;
    if (!path.starts_with(game_)) return nullptr;
    path.remove_prefix(game_.size());
    std::string below(path);
    std::replace(below.begin(), below.end(), '\\', '/');
    return tree_.Find(PathKey(ResolvePath(below)));
  }

  // The lines that entries on this subject can be about, from the first to the last.
  const std::vector<int>& LinesOf(const Subject& subject) {
    const auto [known, isNew] = lines_.try_emplace(subject);
    if (!isNew) return known->second;
    for (const IniSection& section : Read(*subject.File).Sections()) {
      if (section.Id != names_.Find(subject.Section)) continue;
      if (Ucase(section.Nickname()) != Ucase(subject.Nickname)) continue;
      if (subject.Kind == LogKind::RowRefused) known->second.push_back(section.HeaderLine);
      if (subject.Kind != LogKind::DoubleData) continue;
      for (const int line : RepeatedLines(section, names_.Find(subject.Key))) {
        known->second.push_back(line);
      }
    }
    return known->second;
  }

  static std::vector<int> RepeatedLines(const IniSection& section, NameId key) {
    std::vector<int> lines;
    for (const IniEntry& entry : section.Entries) {
      if (entry.Name == key) lines.push_back(entry.Line);
    }
    if (!lines.empty()) lines.erase(lines.begin());
    return lines;
  }

  const IniFile& Read(const DiskFile& disk) {
    std::unique_ptr<IniFile>& file = files_[&disk];
    if (file == nullptr) {
      file = std::make_unique<IniFile>(disk, 0);
      file->Read(tree_, names_);
    }
    return *file;
  }

  std::string game_;
  FileTree tree_;
  NameTable names_;
  std::map<const DiskFile*, std::unique_ptr<IniFile>> files_;
  std::map<Subject, std::vector<int>> lines_;
};

}  // namespace

std::vector<LogPlace> PlacesOfLog(const fs::path& game, const std::vector<LogEntry>& entries) {
  PlaceFinder finder(game);
  std::map<Subject, std::size_t> counts;
  for (const LogEntry& entry : entries) ++counts[finder.SubjectOf(entry)];
  std::map<Subject, std::size_t> seen;
  std::vector<LogPlace> places;
  for (const LogEntry& entry : entries) {
    const Subject subject = finder.SubjectOf(entry);
    places.push_back(finder.Find(entry, seen[subject]++, counts[subject]));
  }
  return places;
}

}  // namespace orrerix::check
