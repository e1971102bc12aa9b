// SPDX-License-Identifier: MIT
#include "check/rules/lane_rules.h"

#include <algorithm>

#include <fmt/format.h>

namespace orrerix::check {
namespace {

class LaneRules {
 public:
  LaneRules(const CheckedGame& game, Findings& findings)
      : game_(game),
        findings_(findings),
        next_(game.Files.Names().Find("next_ring")),
        previous_(game.Files.Names().Find("prev_ring")),
        goto_(game.Files.Names().Find("goto")) {}

  void CheckObject(const IniSection& object) {
    CheckRing(object, next_, previous_);
    CheckRing(object, previous_, next_);
    if (const IniEntry* jump = object.First(goto_)) CheckJump(object, *jump);
  }

 private:
  void CheckRing(const IniSection& ring, NameId key, NameId otherKey) {
    const IniEntry* entry = ring.First(key);
    if (entry == nullptr || entry->At(1).empty()) return;
    const IniSection* other = game_.Known.FindObjectIn(*ring.File, entry->At(1));
    if (other == nullptr) {
      findings_.Add(Rule::LaneBroken, AtEntry(ring, *entry),
                    fmt::format("the ring does not exist: {}", entry->At(1)));
      return;
    }
    const IniEntry* back = other->First(otherKey);
    if (back != nullptr && IsSameName(back->At(1), ring.Nickname())) return;
    findings_.Add(Rule::LaneBroken, AtEntry(ring, *entry),
                  fmt::format("the ring does not name this one in return: {}", entry->At(1)),
                  {PlaceOf(AtEntryOrHeader(*other, back))});
  }

  void CheckJump(const IniSection& object, const IniEntry& jump) {
    const IniSection* system = game_.Known.Find(Kind::System, jump.At(1));
    const IniFile* file = system == nullptr ? nullptr : game_.Files.FileOfSystem(*system);
    if (file == nullptr || jump.At(2).empty()) return;
    const IniSection* end = game_.Known.FindObjectIn(*file, jump.At(2));
    if (end == nullptr) {
      findings_.Add(Rule::GotoTarget, AtEntry(object, jump),
                    fmt::format("object does not exist: {}", jump.At(2)));
      return;
    }
    const IniEntry* back = end->First(goto_);
    if (back != nullptr && LeadsTo(*back, object)) return;
    findings_.Add(Rule::JumpOneWay, AtEntry(object, jump),
                  fmt::format("the other end does not lead back: {}", jump.Value),
                  {PlaceOf(AtEntryOrHeader(*end, back))});
  }

  bool LeadsTo(const IniEntry& jump, const IniSection& object) const {
    const auto& systems = game_.Known.SystemsOf(*object.File);
    const bool isThisSystem = std::any_of(
        systems.begin(), systems.end(),
        [&jump](const IniSection* system) { return IsSameName(system->Nickname(), jump.At(1)); });
    return isThisSystem && IsSameName(jump.At(2), object.Nickname());
  }

  const CheckedGame& game_;
  Findings& findings_;
  NameId next_;
  NameId previous_;
  NameId goto_;
};

}  // namespace

void CheckLanesAndJumps(const CheckedGame& game, Findings& findings) {
  LaneRules rules(game, findings);
  for (const IniSection* object : game.Known.All(Kind::Object)) rules.CheckObject(*object);
}

}  // namespace orrerix::check
