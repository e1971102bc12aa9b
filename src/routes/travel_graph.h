// SPDX-License-Identifier: MIT
// The places of a universe between which a ship travels, and what connects them.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "routes/travel_model.h"

namespace orrerix {

using NodeIndex = std::size_t;
using SystemIndex = std::size_t;

// A point of a system, game units.
struct SpacePoint {
  double X = 0;
  double Y = 0;
  double Z = 0;
};
double Distance(const SpacePoint& a, const SpacePoint& b);

enum class JumpKind { Gate, Hole };

struct Jump {
  JumpKind Kind = JumpKind::Gate;
  NodeIndex Target = 0;
};

// The place of a ring in its trade lane.
struct LanePlace {
  std::size_t Lane = 0;
  std::size_t Ring = 0;
};

// An object that takes part in travel: it has a nickname, a system and a position.
struct TravelObject {
  std::string Nickname;
  std::string Key;   // the nickname in lower case (ASCII), by which objects are found and ordered
  std::string Name;  // what people call it
  std::int64_t NameId = 0;  // of the game's text for it
  SystemIndex System = 0;
  SpacePoint Point;
  std::string Base;   // of a dock: the base that it belongs to
  std::string Owner;  // of a dock
  bool IsDock = false;
  std::string GotoText;          // of an object that has a `goto`: its field as written
  std::optional<Jump> JumpsTo;   // of a jump that works
  std::vector<LanePlace> Rings;  // a ring may belong to lanes that meet
  bool IsArrival = false;        // a jump leads here

  // Whether every way may use it; other objects are places only for the way that names them.
  bool IsNode() const { return IsDock || JumpsTo || !Rings.empty() || IsArrival; }
};

struct TravelSystem {
  std::string Nickname;
  std::string Key;
  std::string Name;
  std::optional<std::pair<double, double>> Cell;  // its place on the map
  std::vector<NodeIndex> Objects;                 // in the order of their nicknames
};

// A trade lane: rings in their order, and the distance of each from the one before.
struct TradeLaneRings {
  std::vector<NodeIndex> Rings;
  std::vector<double> Distances;  // [i] from ring i to ring i + 1

  // Along the lane between two of its rings.
  double Between(std::size_t from, std::size_t to) const;
};

// All objects that take part, in the order of their nicknames (text order: without regard to the
// case of ASCII letters, then by code point), so that comparing indexes compares nicknames.
struct TravelGraph {
  std::vector<TravelObject> Objects;
  std::vector<TravelSystem> Systems;
  std::vector<TradeLaneRings> Lanes;

  std::optional<NodeIndex> FindObject(std::string_view nickname) const;
  std::optional<SystemIndex> FindSystem(std::string_view nickname) const;
};

// Reads the graph out of a finished universe. Objects with a position of other than three numbers
// within a thousand million units do not take part; of several with a nickname the first does.
TravelGraph ReadTravelGraph(FailureSink& sink, Database& universe);

// The target that a `goto` names, between its first comma and the next; empty without a comma.
std::string_view GotoTarget(std::string_view text);

// What a player wants to keep away from, and what is locked.
struct TravelLimits {
  std::vector<bool> Closed;     // by node: it is not in the graph
  std::vector<bool> Forbidden;  // by node: a dock that lets nobody in
  bool NoGates = false;
  bool NoHoles = false;
  std::set<std::uint32_t> Locked;  // numbers of locked jumps; empty: none is avoided

  bool IsOpen(NodeIndex node) const { return !Closed[node]; }
};

// Why a jump cannot be taken; nothing if it can.
enum class JumpObstacle { Missing, Avoided, NoGates, NoHoles, Locked };
std::optional<JumpObstacle> ObstacleOf(const TravelGraph& graph, const TravelLimits& limits,
                                       NodeIndex jump);

}  // namespace orrerix
