// SPDX-License-Identifier: MIT
// Everything that the game's files define, by kind and nickname.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "check/files/game_files.h"
#include "check/model/kinds.h"

namespace orrerix::check {

// A section whose nickname an earlier one of its kind has.
struct Duplicate {
  const IniSection* Section;
  const IniSection* First;
};

class Definitions {
 public:
  // Also numbers the sections of bases' people by the MBase above them.
  explicit Definitions(GameFiles& files);

  // The first definition of a nickname; null if there is none. Of kinds that are unique in a file
  // or an MBase: that of the file or MBase where `near` stands.
  const IniSection* Find(Kind kind, std::string_view nickname,
                         const IniSection* near = nullptr) const;

  // An object of one file.
  const IniSection* FindObjectIn(const IniFile& file, std::string_view nickname) const;

  // All sections of a kind in the order of the files, duplicates among them.
  const std::vector<const IniSection*>& All(Kind kind) const {
    return all_[static_cast<std::size_t>(kind)];
  }

  const std::vector<Duplicate>& Duplicates() const { return duplicates_; }
  // Sections of kinds that need a nickname and have none.
  const std::vector<const IniSection*>& Nameless() const { return nameless_; }

  // Whether all files that can define the kind are there.
  bool IsComplete(Kind kind) const { return isComplete_[static_cast<std::size_t>(kind)]; }

  // The System sections whose file this is, the first one first.
  const std::vector<const IniSection*>& SystemsOf(const IniFile& file) const;

 private:
  struct Key {
    std::uint32_t KindNumber;
    std::int32_t Scope;
    NameId Name;
    bool operator==(const Key&) const = default;
  };
  struct KeyHash {
    std::size_t operator()(const Key& key) const {
      return std::hash<std::uint64_t>()((std::uint64_t{key.KindNumber} << 56) ^
                                        (static_cast<std::uint64_t>(key.Scope) << 32) ^ key.Name);
    }
  };

  void TakeFile(IniFile& file);
  void Take(const KindInfo& kind, const IniSection& section);

  GameFiles& files_;
  int lastMBase_ = 0;
  std::unordered_map<Key, const IniSection*, KeyHash> first_;
  std::vector<std::vector<const IniSection*>> all_;
  std::vector<Duplicate> duplicates_;
  std::vector<const IniSection*> nameless_;
  std::vector<bool> isComplete_;
  std::unordered_map<const IniFile*, std::vector<const IniSection*>> systemsOf_;
};

}  // namespace orrerix::check
