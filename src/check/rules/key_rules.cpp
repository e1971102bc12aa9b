// SPDX-License-Identifier: MIT
#include "check/rules/key_rules.h"

#include <algorithm>
#include <unordered_map>

#include <fmt/format.h>

#include "check/rules/key_spelling.h"

namespace orrerix::check {
namespace {

constexpr std::size_t kOften = 20;
constexpr std::size_t kTimesRarer = 50;

// In how many sections each key stands.
using KeyCounts = std::unordered_map<NameId, std::size_t>;

class KeySpelling {
 public:
  explicit KeySpelling(const CheckedGame& game) : game_(game) {}

  void CountKeys() {
    for (const IniFile* file : game_.Files.InisWith(kKnownRoles)) {
      for (const IniSection& section : file->Sections()) {
        KeyCounts& counts = counts_[section.Id];
        for (const NameId key : KeysOf(section)) ++counts[key];
      }
    }
    for (const auto& [section, counts] : counts_) FindLikelyKeys(section, counts);
  }

  void Report(Findings& findings) const {
    for (const IniFile* file : game_.Files.InisWith(kKnownRoles)) {
      for (const IniSection& section : file->Sections()) {
        const auto known = likely_.find(section.Id);
        if (known != likely_.end()) CheckSection(section, known->second, findings);
      }
    }
  }

 private:
  using LikelyKeys = std::unordered_map<NameId, std::vector<NameId>>;

  static std::vector<NameId> KeysOf(const IniSection& section) {
    std::vector<NameId> keys;
    for (const IniEntry& entry : section.Entries) keys.push_back(entry.Name);
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return keys;
  }

  // For each rare key the common ones that it may stand for, the commonest first.
  void FindLikelyKeys(NameId section, const KeyCounts& counts) {
    std::vector<std::pair<std::size_t, NameId>> common;
    for (const auto& [key, count] : counts) {
      if (count >= kOften) common.emplace_back(count, key);
    }
    std::sort(common.begin(), common.end(), [this](const auto& a, const auto& b) {
      return a.first != b.first ? a.first > b.first : TextOf(a.second) < TextOf(b.second);
    });
    for (const auto& [key, count] : counts) {
      const std::u32string spelled = Letters(key);
      for (const auto& [often, other] : common) {
        if (often < count * kTimesRarer) break;
        if (IsOneSlipFrom(spelled, Letters(other))) likely_[section][key].push_back(other);
      }
    }
  }

  void CheckSection(const IniSection& section, const LikelyKeys& likely, Findings& findings) const {
    for (const IniEntry& entry : section.Entries) {
      const auto known = likely.find(entry.Name);
      if (known == likely.end() || section.First(entry.Name) != &entry) continue;
      const auto meant =
          std::find_if(known->second.begin(), known->second.end(),
                       [&section](NameId key) { return section.First(key) == nullptr; });
      if (meant == known->second.end()) continue;
      findings.Add(
          Rule::KeyMisspelt, AtEntry(section, entry),
          fmt::format("the key {} is probably {}: {}", entry.Key, TextOf(*meant), entry.Value));
    }
  }

  const std::string& TextOf(NameId key) const { return game_.Files.Names().Text(key); }

  std::u32string Letters(NameId key) const {
    std::u32string letters;
    const std::string& text = TextOf(key);
    for (std::size_t at = 0; at < text.size();) letters.push_back(NextCodePoint(text, at));
    return letters;
  }

  const CheckedGame& game_;
  std::unordered_map<NameId, KeyCounts> counts_;  // by section
  std::unordered_map<NameId, LikelyKeys> likely_;
};

}  // namespace

void CheckKeySpelling(const CheckedGame& game, Findings& findings) {
  if (!findings.Wants(Rule::KeyMisspelt)) return;
  KeySpelling spelling(game);
  spelling.CountKeys();
  spelling.Report(findings);
}

}  // namespace orrerix::check
