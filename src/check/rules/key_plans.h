// SPDX-License-Identifier: MIT
// What the tables say about a key of a section, looked up once for all of its lines.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "check/files/names.h"
#include "check/rules/reference_table.h"
#include "check/rules/shape_table.h"

namespace orrerix::check {

// A value that is the number of a text.
struct TextNumberPlace {
  std::size_t ValueNumber = 1;
  bool IsCard = false;  // else a string
};

struct KeyPlan {
  std::vector<const Reference*> References;
  const check::Shape* Shape = nullptr;
  std::vector<const Range*> Ranges;
  std::vector<TextNumberPlace> TextNumbers;
  bool IsAsset = false;       // names a file of models or materials
  bool MayStandOnce = false;  // a second line has no effect

  bool IsEmpty() const {
    return References.empty() && Shape == nullptr && Ranges.empty() && TextNumbers.empty() &&
           !IsAsset;
  }
};

class KeyPlans {
 public:
  explicit KeyPlans(const NameTable& names) : names_(names) {}

  const KeyPlan& Of(RoleSet roles, NameId section, NameId key);

 private:
  struct Place {
    std::uint32_t Roles;
    NameId Section;
    NameId Key;
    bool operator==(const Place&) const = default;
  };
  struct PlaceHash {
    std::size_t operator()(const Place& place) const {
      return std::hash<std::uint64_t>()((std::uint64_t{place.Roles} << 40) ^
                                        (std::uint64_t{place.Section} << 20) ^ place.Key);
    }
  };

  const NameTable& names_;
  std::unordered_map<Place, KeyPlan, PlaceHash> plans_;
};

}  // namespace orrerix::check
