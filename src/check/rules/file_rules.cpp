// SPDX-License-Identifier: MIT
#include "check/rules/file_rules.h"

#include <algorithm>
#include <map>
#include <tuple>

#include <fmt/format.h>

#include "check/files/paths.h"

namespace orrerix::check {
namespace {

Spot AtNaming(const Naming& naming) {
  return {&naming.File->Disk(), naming.Entry->Line, naming.File->SectionAt(naming.Entry->Line),
          naming.Entry};
}

Spot AtConfiguration(const CheckedGame& game) {
  return AtFirstLine(game.Files.Configuration().Disk());
}

void CheckMissing(const CheckedGame& game, Findings& findings) {
  std::size_t absent = 0;
  for (const ExpectedFile& expected : game.Files.Expected()) {
    if (expected.Disk != nullptr) continue;
    ++absent;
    if (!game.Files.IsWhole()) continue;
    const bool isNamed = !expected.Namings.empty();
    findings.Add(Rule::FileMissing,
                 isNamed ? AtNaming(expected.Namings.front()) : AtConfiguration(game),
                 fmt::format("file does not exist: {}",
                             isNamed ? expected.Namings.front().Entry->Value : expected.Path));
  }
  if (game.Files.IsWhole() || absent == 0) return;
  findings.Add(Rule::FilesAbsent, AtConfiguration(game),
               fmt::format("files that the game expects are not in this folder: {}", absent));
}

std::string DescribeTrouble(const IniFile& file) {
  const std::string& path = file.Disk().Path;
  switch (file.Trouble()) {
    case IniTrouble::DamagedPacked:
      return fmt::format("the packed file is damaged: {}", path);
    case IniTrouble::Utf16:
      return fmt::format("the file is in UTF-16: {}", path);
    default:
      return fmt::format("the file cannot be read: {}", path);
  }
}

void CheckDamaged(const CheckedGame& game, Findings& findings) {
  for (const ExpectedFile& expected : game.Files.Expected()) {
    if (expected.Ini == nullptr || expected.Ini->IsUsable()) continue;
    findings.Add(Rule::DamagedFile, AtFirstLine(expected.Ini->Disk()),
                 DescribeTrouble(*expected.Ini));
  }
  const auto& lines = game.Files.LibraryLines();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!game.Texts.At(i + 1).IsDamaged) continue;
    findings.Add(Rule::DamagedFile, AtNaming({&game.Files.Configuration(), lines[i], {}}),
                 fmt::format("this is no resource library: {}", lines[i]->At(1)));
  }
}

// Whether the components of a path, as it is named, are spelled otherwise on disk.
bool DiffersInCase(std::string_view named, std::string_view onDisk) {
  while (named.starts_with("../")) named.remove_prefix(3);
  return !onDisk.ends_with(named);
}

void CheckCase(const CheckedGame& game, Findings& findings) {
  std::vector<FilePlace> places;
  for (const ExpectedFile& expected : game.Files.Expected()) {
    const bool isOwnIni =
        expected.Ini != nullptr && expected.Disk->Layer == Layer::Game && !expected.IsLibrary;
    if (!isOwnIni) continue;
    for (const Naming& naming : expected.Namings) {
      if (naming.File->Disk().Layer != Layer::Game) continue;
      if (DiffersInCase(naming.Path, expected.Disk->Path)) {
        places.push_back(PlaceOf(AtNaming(naming)));
      }
    }
  }
  if (places.empty()) return;
  std::sort(places.begin(), places.end(), [](const FilePlace& a, const FilePlace& b) {
    return std::tie(a.File, a.Line) < std::tie(b.File, b.Line);
  });
  const std::size_t count = places.size();
  findings.Add(Rule::FileCase, AtConfiguration(game),
               fmt::format("lines that name files in other case than on disk: {}", count),
               std::move(places));
}

void CheckTwice(const CheckedGame& game, Findings& findings) {
  using LayeredPath = std::pair<Layer, std::string_view>;
  std::map<LayeredPath, const DiskFile*> seen;
  for (const DiskFile& file : game.Files.Tree().Files()) {
    const auto [first, isNew] = seen.emplace(LayeredPath(file.Layer, file.Key), &file);
    if (isNew) continue;
    findings.Add(
        Rule::FileTwice, AtFirstLine(file),
        fmt::format("the path differs only in case from {}: {}", first->second->Path, file.Path),
        {PlaceOf(AtFirstLine(*first->second))});
  }
}

// Whether a path is that of an ini file right in a folder below another one.
bool IsIniInFolderOf(std::string_view key, std::string_view folder) {
  if (!key.starts_with(folder) || !key.ends_with(".ini")) return false;
  key.remove_prefix(folder.size());
  return std::count(key.begin(), key.end(), '/') == 2 && key.starts_with('/');
}

void CheckUnused(const CheckedGame& game, Findings& findings) {
  if (!game.Files.IsComplete(Role::Universe)) return;
  const std::string folder = PathKey(JoinPath(game.Files.DataFolder(), "universe/systems"));
  for (const DiskFile& file : game.Files.Tree().Files()) {
    if (file.Layer != Layer::Game || !IsIniInFolderOf(file.Key, folder)) continue;
    if (game.Files.FindExpected(file.Key) != nullptr) continue;
    findings.Add(Rule::SystemFileUnused, AtFirstLine(file),
                 fmt::format("no file of the game names this one: {}", file.Path));
  }
}

}  // namespace

void CheckFiles(const CheckedGame& game, Findings& findings) {
  CheckMissing(game, findings);
  CheckDamaged(game, findings);
  CheckCase(game, findings);
  CheckTwice(game, findings);
  CheckUnused(game, findings);
}

}  // namespace orrerix::check
