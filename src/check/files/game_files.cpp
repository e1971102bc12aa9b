// SPDX-License-Identifier: MIT
#include "check/files/game_files.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "check/check.h"
#include "check/files/paths.h"
#include "check/model/kinds.h"

namespace orrerix::check {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kConfiguration = "exe/freelancer.ini";
constexpr std::string_view kProgramFolder = "EXE";
constexpr std::string_view kIniEnding = ".ini";

// Files that the game reads unless its configuration names others.
struct FixedFile {
  check::Role Role;
  std::string_view Path;
};
constexpr std::array kFixedFiles = std::to_array<FixedFile>({
    {Role::MBases, "missions\\mbases.ini"},
    {Role::NpcShips, "missions\\npcships.ini"},
    {Role::FactionProps, "missions\\faction_prop.ini"},
    {Role::Stars, "solar\\stararch.ini"},
});

bool EndsInIni(std::string_view value) {
  return value.size() >= kIniEnding.size() &&
         EqualIgnoringCase(value.substr(value.size() - kIniEnding.size()), kIniEnding);
}

}  // namespace

GameFiles::GameFiles(const fs::path& game, const std::optional<fs::path>& base,
                     std::function<void()> goOn)
    : tree_(game, base), isWhole_(base.has_value()), goOn_(std::move(goOn)) {
  ReadConfiguration();
  if (configuration_ == nullptr) {
    throw CannotCheck(fmt::format("'{}' is no game folder: there is no usable EXE/freelancer.ini",
                                  game.string()));
  }
  ExpectConfigured();
  ExpectFixed();
  ReadExpected();
  ExpectPlaces();
  ExpectLibraries();
}

void GameFiles::ReadConfiguration() {
  const DiskFile* disk = tree_.Find(kConfiguration);
  if (disk == nullptr) return;
  IniFile* file = ReadIni(*disk);
  if (!file->IsUsable()) return;
  configuration_ = file;
  std::string_view named;
  for (const IniSection& section : file->Sections()) {
    const IniEntry* entry =
        IsSameName(section.Name, "Freelancer") ? section.First(names_.Find("data path")) : nullptr;
    if (entry != nullptr && named.empty()) named = entry->Value;
  }
  dataFolder_ = named.empty() ? "DATA" : JoinPath(kProgramFolder, named);
}

void GameFiles::ExpectConfigured() {
  for (const IniSection& section : configuration_->Sections()) {
    if (!IsSameName(section.Name, "Data")) continue;
    for (const IniEntry& entry : section.Entries) {
      if (!EndsInIni(entry.Value)) continue;
      Expect(dataFolder_, entry.Value, {RoleOfKey(entry.Key)}, configuration_, &entry);
    }
  }
}

void GameFiles::ExpectFixed() {
  for (const FixedFile& fixed : kFixedFiles) {
    const bool isNamed = std::any_of(
        expected_.begin(), expected_.end(),
        [&fixed](const ExpectedFile& expected) { return expected.Roles.Has(fixed.Role); });
    if (!isNamed) Expect(dataFolder_, fixed.Path, {fixed.Role}, nullptr, nullptr);
  }
}

std::string GameFiles::UniverseFolder() const {
  return JoinPath(dataFolder_, "universe");
}

void GameFiles::ExpectPlaces() {
  std::vector<ExpectedFile*> bases;
  for (const IniFile* file : InisWith({Role::Universe})) {
    ExpectIn(*file, "System", "file", UniverseFolder(), {Role::System});
    const auto named = ExpectIn(*file, "Base", "file", dataFolder_, {Role::Other});
    bases.insert(bases.end(), named.begin(), named.end());
  }
  ReadExpected();
  for (const IniFile* file : InisWith({Role::System})) {
    ExpectIn(*file, "Asteroids", "file", dataFolder_, {Role::Other});
    ExpectIn(*file, "Nebula", "file", dataFolder_, {Role::Other});
    ExpectIn(*file, "EncounterParameters", "filename", dataFolder_, {Role::Other});
  }
  for (const ExpectedFile* base : bases) {
    if (base->Ini != nullptr) ExpectIn(*base->Ini, "Room", "file", dataFolder_, {Role::Other});
  }
  ReadExpected();
}

std::vector<ExpectedFile*> GameFiles::ExpectIn(const IniFile& file, std::string_view section,
                                               std::string_view key, const std::string& folder,
                                               RoleSet roles) {
  const NameId sectionName = names_.Intern(section);
  const NameId keyName = names_.Intern(key);
  std::vector<ExpectedFile*> named;
  for (const IniSection& each : file.Sections()) {
    if (each.Id != sectionName) continue;
    const IniEntry* entry = each.First(keyName);
    if (entry == nullptr || entry->At(1).empty()) continue;
    named.push_back(&Expect(folder, entry->At(1), roles, &file, entry));
  }
  return named;
}

void GameFiles::ExpectLibraries() {
  const NameId resources = names_.Intern("Resources");
  const NameId dll = names_.Intern("DLL");
  for (const IniSection& section : configuration_->Sections()) {
    if (section.Id != resources) continue;
    for (const IniEntry& entry : section.Entries) {
      if (entry.Name != dll) continue;
      libraryLines_.push_back(&entry);
      if (entry.At(1).empty()) continue;
      Expect(std::string(kProgramFolder), entry.At(1), {}, configuration_, &entry).IsLibrary = true;
    }
  }
}

ExpectedFile& GameFiles::Expect(const std::string& folder, std::string_view value, RoleSet roles,
                                const IniFile* file, const IniEntry* entry) {
  const std::string path = JoinPath(folder, value);
  const std::string key = PathKey(path);
  const auto [known, isNew] = byKey_.try_emplace(key, nullptr);
  if (isNew) {
    expected_.push_back({path, key, {}, false, {}, tree_.Find(key), nullptr});
    known->second = &expected_.back();
  }
  ExpectedFile& expected = *known->second;
  for (int role = 0; role < kRoleCount; ++role) {
    if (roles.Has(static_cast<Role>(role))) expected.Roles.Add(static_cast<Role>(role));
  }
  if (file != nullptr) expected.Namings.push_back({file, entry, ResolvePath(value)});
  return expected;
}

void GameFiles::ReadExpected() {
  for (ExpectedFile& expected : expected_) {
    if (expected.Disk == nullptr || expected.IsLibrary) continue;
    if (expected.Ini == nullptr) expected.Ini = ReadIni(*expected.Disk);
    roles_[expected.Ini->Number()] = expected.Roles;
  }
  CutSections();
}

IniFile* GameFiles::ReadIni(const DiskFile& disk) {
  const auto [known, isNew] = iniOf_.try_emplace(&disk, nullptr);
  if (!isNew) return known->second;
  goOn_();
  IniFile& file = inis_.emplace_back(disk, static_cast<int>(inis_.size()));
  known->second = &file;
  file.Read(tree_, names_);
  roles_.emplace_back();
  return &file;
}

void GameFiles::CutSections() {
  for (IniFile& file : inis_) {
    const RoleSet roles = roles_[file.Number()];
    if (!roles.Meets(kKnownRoles)) continue;
    file.CutSections([this, roles](const IniSection& section) {
      return IsCutAtLeadKey(roles, names_.Text(section.Id));
    });
  }
}

std::vector<const IniFile*> GameFiles::AllInis() const {
  std::vector<const IniFile*> files = {configuration_};
  for (const ExpectedFile& expected : expected_) {
    const bool isUsable = expected.Ini != nullptr && expected.Ini->IsUsable();
    if (isUsable && expected.Ini != configuration_) files.push_back(expected.Ini);
  }
  return files;
}

std::vector<IniFile*> GameFiles::ReadInis() {
  std::vector<IniFile*> files;
  for (const ExpectedFile& expected : expected_) {
    if (expected.Ini != nullptr && expected.Ini->IsUsable()) files.push_back(expected.Ini);
  }
  return files;
}

std::vector<const IniFile*> GameFiles::InisWith(RoleSet roles) const {
  std::vector<const IniFile*> files;
  for (const ExpectedFile& expected : expected_) {
    const bool isUsable = expected.Ini != nullptr && expected.Ini->IsUsable();
    if (isUsable && expected.Roles.Meets(roles)) files.push_back(expected.Ini);
  }
  return files;
}

bool GameFiles::IsComplete(Role role) const {
  bool isNamed = false;
  for (const ExpectedFile& expected : expected_) {
    if (!expected.Roles.Has(role)) continue;
    if (expected.Ini == nullptr || !expected.Ini->IsUsable()) return false;
    isNamed = true;
  }
  return isNamed;
}

const ExpectedFile* GameFiles::FindExpected(const std::string& key) const {
  const auto found = byKey_.find(key);
  return found == byKey_.end() ? nullptr : found->second;
}

const IniFile* GameFiles::FileOfSystem(const IniSection& system) const {
  const IniEntry* entry = system.First(names_.Find("file"));
  if (entry == nullptr || entry->At(1).empty()) return nullptr;
  const ExpectedFile* expected = FindExpected(PathKey(JoinPath(UniverseFolder(), entry->At(1))));
  if (expected == nullptr || expected->Ini == nullptr || !expected->Ini->IsUsable()) return nullptr;
  return expected->Ini;
}

}  // namespace orrerix::check
