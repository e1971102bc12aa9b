// SPDX-License-Identifier: MIT
// Why there is no way.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "routes/fastest_way.h"

namespace orrerix {

// What a player asked to keep away from, as it was written.
struct TravelWishes {
  std::vector<std::string> Avoid;
  std::vector<std::string> AvoidFactions;
  bool NoGates = false;
  bool NoHoles = false;
  bool NoLocked = false;

  bool operator==(const TravelWishes&) const = default;
};

// The limits that wishes come to. A name that stands for nothing closes nothing. `locked` are the
// numbers of all jumps that the story keeps locked.
TravelLimits LimitsOf(const TravelGraph& graph, const TravelWishes& wishes,
                      const std::set<std::uint32_t>& locked);

// One wish, by the name of its option; options without a value have none.
struct WishItem {
  std::string Option;
  std::optional<std::string> Value;
};

// An object with a `goto` in a system that is reached, where one cannot go on to systems that are
// not.
struct BlockedJump {
  NodeIndex Object = 0;
  std::string Goto;  // the target as written
  JumpObstacle Because = JumpObstacle::Missing;
};

struct NearestSystem {
  SystemIndex System = 0;
  NodeIndex Object = 0;  // reached first there
  std::int64_t Time = 0;
  double Cells = 0;  // straight distance on the map to a system of the target
};

struct WhyNoWay {
  std::vector<WishItem> Items;  // wishes each of which, left out alone, makes a way
  bool AllTogether = false;     // there are wishes, and a way without them all
  std::vector<BlockedJump> Blocked;
  int Entrances = 0;  // jumps from other systems into those of the target, closed or not
  std::optional<NearestSystem> Nearest;
};

// Precondition: under these wishes there is no way.
WhyNoWay ExplainNoWay(const TravelGraph& graph, const TravelModel& model,
                      const TravelWishes& wishes, const std::set<std::uint32_t>& locked,
                      const TravelPlace& from, const TravelPlace& to);

}  // namespace orrerix
