// SPDX-License-Identifier: MIT
#include "check/rules/key_plans.h"

#include <array>

namespace orrerix::check {
namespace {

struct TextNumberKey {
  std::string_view Key;
  TextNumberPlace Place;
};
constexpr bool kCard = true;
constexpr std::array kTextNumberKeys = std::to_array<TextNumberKey>({
    {"ids_name", {}},
    {"strid_name", {}},
    {"ids_short_name", {}},
    {"individual_name", {}},
    {"tradelane_space_name", {}},
    {"ids_info", {1, kCard}},
    {"ids_info1", {1, kCard}},
    {"ids_info2", {1, kCard}},
    {"ids_info3", {1, kCard}},
    {"rumor", {4, kCard}},
    {"rumor_type2", {4, kCard}},
    {"know", {1, kCard}},
    {"know", {2, kCard}},
});

constexpr std::array<std::string_view, 4> kAssetKeys = {"da_archetype", "material_library",
                                                        "cockpit", "pilot_mesh"};

// Keys whose lines form a list.
constexpr std::array<std::string_view, 18> kListKeys = {"addon",
                                                        "free_ammo",
                                                        "marketgood",
                                                        "equip",
                                                        "cargo",
                                                        "rep",
                                                        "bribe",
                                                        "fixture",
                                                        "shield_mod",
                                                        "encounter",
                                                        "fuse",
                                                        "npc",
                                                        "density_restriction",
                                                        "shield_hit_effects",
                                                        "effect",
                                                        "npc_ship",
                                                        "surface_hit_effects",
                                                        "debris_type"};

bool IsList(RoleSet roles, std::string_view section, std::string_view key) {
  if (std::find(kListKeys.begin(), kListKeys.end(), key) != kListKeys.end()) return true;
  if (key == "hp_type") return Of(Kind::Ship).Matches(roles, section);
  return key == "faction" && Of(Kind::Zone).Matches(roles, section);
}

const Shape* ShapeOf(RoleSet roles, std::string_view section, std::string_view key) {
  for (const Shape& shape : Shapes()) {
    if (shape.Key == key && shape.Sections.Matches(roles, section)) return &shape;
  }
  return nullptr;
}

KeyPlan PlanFor(RoleSet roles, std::string_view section, std::string_view key) {
  KeyPlan plan;
  for (const Reference& reference : References()) {
    if (MatchesKey(reference.Key, key) && reference.Sections.Matches(roles, section)) {
      plan.References.push_back(&reference);
    }
  }
  plan.Shape = ShapeOf(roles, section, key);
  const bool isNumber =
      plan.Shape != nullptr && plan.Shape->Must == "N" && plan.Shape->Optional.empty();
  for (const Range& range : Ranges()) {
    if (range.Key == key && range.Sections.Matches(roles, section) &&
        (isNumber || !range.NeedsNumberShape)) {
      plan.Ranges.push_back(&range);
    }
  }
  for (const TextNumberKey& each : kTextNumberKeys) {
    if (each.Key == key) plan.TextNumbers.push_back(each.Place);
  }
  plan.IsAsset = roles.Meets(kArchetypes) &&
                 std::find(kAssetKeys.begin(), kAssetKeys.end(), key) != kAssetKeys.end();
  plan.MayStandOnce =
      (plan.Shape != nullptr || !plan.References.empty()) && !IsList(roles, section, key);
  return plan;
}

}  // namespace

const KeyPlan& KeyPlans::Of(RoleSet roles, NameId section, NameId key) {
  const Place place{roles.Bits(), section, key};
  const auto [known, isNew] = plans_.try_emplace(place);
  if (isNew) known->second = PlanFor(roles, names_.Text(section), names_.Text(key));
  return known->second;
}

}  // namespace orrerix::check
