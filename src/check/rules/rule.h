// SPDX-License-Identifier: MIT
// The rules: their names, severities and documentation, in one place.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "check/finding.h"

namespace orrerix::check {

enum class Rule {
  AssetMissing,
  BadBytes,
  BadHeader,
  BaseNoObject,
  BaseSystem,
  CardMalformed,
  CardMissing,
  DamagedFile,
  EffectUnknown,
  EquipmentPart,
  FactionUnknown,
  FieldZone,
  FileCase,
  FileMissing,
  FileTwice,
  FilesAbsent,
  ForgottenHeader,
  GoodPart,
  GotoTarget,
  HardpointTwice,
  HardpointUnknown,
  JumpOneWay,
  KeyDuplicate,
  KeyMisspelt,
  LaneBroken,
  LoadoutArchetype,
  LoadoutItem,
  MapCellShared,
  MarketBase,
  MarketDuplicate,
  MarketGood,
  MBaseBase,
  MBasePart,
  MissingComma,
  MountImpossible,
  NameMissing,
  NicknameDuplicate,
  NicknameMissing,
  NoEquals,
  NpcShipUnknown,
  NumberExpected,
  NumberRange,
  ObjectArchetype,
  ObjectBase,
  ObjectLoadout,
  ObjectOutsideMap,
  ObjectParent,
  ObjectStar,
  PriceMissing,
  RelationAsymmetric,
  RelationMissing,
  SoundUnknown,
  SystemFileUnused,
  SystemUnreachable,
  TextBeforeSection,
  TextLibrary,
  TextMissing,
  ValueCount,
  WeaponTypeUnknown,
  ZoneEncounter,
};

struct RuleInfo {
  check::Rule Rule;
  std::string_view Id;
  check::Severity Severity;
  std::string_view Title;        // what is wrong, one sentence
  std::string_view Explanation;  // when exactly, what comes of it, what to do
};

// All rules, by id in byte order.
std::span<const RuleInfo> AllRules();

const RuleInfo& InfoOf(Rule rule);

// The rule with an id; nothing if there is none.
std::optional<Rule> FindRule(std::string_view id);

// The documentation of one rule, lines of text.
std::string ExplainRule(Rule rule);

// The documentation of all rules as a page of Markdown.
std::string RulesPage();

}  // namespace orrerix::check
