// SPDX-License-Identifier: MIT
// The files that a game's configuration leads to, read.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "check/files/file_tree.h"
#include "check/files/ini_file.h"
#include "check/files/names.h"
#include "check/files/roles.h"

namespace orrerix::check {

// The line that names a file.
struct Naming {
  const IniFile* File = nullptr;
  const IniEntry* Entry = nullptr;
  std::string Path;  // as its value spells it, resolved
};

struct ExpectedFile {
  std::string Path;  // resolved
  std::string Key;   // as it compares
  RoleSet Roles;
  bool IsLibrary = false;
  std::vector<Naming> Namings;     // empty: the game knows the path by itself
  const DiskFile* Disk = nullptr;  // null: not there
  IniFile* Ini = nullptr;          // null: not there, or a library
};

// Reads the configuration and every ini file that it leads to. Libraries are listed, not read.
class GameFiles {
 public:
  // Throws CannotCheck without a usable EXE/freelancer.ini. `goOn` is called before each file.
  GameFiles(const std::filesystem::path& game, const std::optional<std::filesystem::path>& base,
            std::function<void()> goOn);
  GameFiles(const GameFiles&) = delete;
  GameFiles& operator=(const GameFiles&) = delete;

  const FileTree& Tree() const { return tree_; }
  NameTable& Names() { return names_; }
  const NameTable& Names() const { return names_; }

  // Whether a base is there, so that no file is absent on purpose.
  bool IsWhole() const { return isWhole_; }

  // EXE/freelancer.ini.
  const IniFile& Configuration() const { return *configuration_; }
  // The data folder, resolved.
  const std::string& DataFolder() const { return dataFolder_; }

  // In the order in which they are named.
  const std::deque<ExpectedFile>& Expected() const { return expected_; }
  // The lines that name libraries, one for each, in their order.
  const std::vector<const IniEntry*>& LibraryLines() const { return libraryLines_; }

  // The configuration and all expected ini files that are usable, in the order they are named.
  std::vector<const IniFile*> AllInis() const;
  // The usable ones of the expected ini files, in the order they are named.
  std::vector<IniFile*> ReadInis();
  // Usable files with one of the roles.
  std::vector<const IniFile*> InisWith(RoleSet roles) const;
  RoleSet RolesOf(const IniFile& file) const { return roles_[file.Number()]; }

  // Whether all files of a role are there and usable, and there is one at least.
  bool IsComplete(Role role) const;

  // The expected file at a path; null if none is expected there.
  const ExpectedFile* FindExpected(const std::string& key) const;
  // The file of a System section; null if it names none or is not usable.
  const IniFile* FileOfSystem(const IniSection& system) const;

 private:
  void ReadConfiguration();
  void ExpectConfigured();
  void ExpectFixed();
  void ExpectLibraries();
  void ExpectPlaces();
  std::vector<ExpectedFile*> ExpectIn(const IniFile& file, std::string_view section,
                                      std::string_view key, const std::string& folder,
                                      RoleSet roles);
  ExpectedFile& Expect(const std::string& folder, std::string_view value, RoleSet roles,
                       const IniFile* file, const IniEntry* entry);
  // Reads what is expected and not read yet.
  void ReadExpected();
  IniFile* ReadIni(const DiskFile& disk);
  void CutSections();
  std::string UniverseFolder() const;

  FileTree tree_;
  bool isWhole_;
  std::function<void()> goOn_;
  NameTable names_;
  std::deque<IniFile> inis_;
  std::unordered_map<const DiskFile*, IniFile*> iniOf_;
  std::vector<RoleSet> roles_;  // of the ini files by number
  IniFile* configuration_ = nullptr;
  std::string dataFolder_;
  std::deque<ExpectedFile> expected_;
  std::map<std::string, ExpectedFile*> byKey_;
  std::vector<const IniEntry*> libraryLines_;
};

}  // namespace orrerix::check
