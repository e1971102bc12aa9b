// SPDX-License-Identifier: MIT
#include "routes/travel_graph.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "routes/gate_number.h"
#include "routes/table_rows.h"

namespace orrerix {
namespace {

constexpr double kFarthest = 1e9;  // game units on each axis

// A row of Objects with what is looked at once all are known.
struct ObjectRow {
  TravelObject Object;
  std::string System;
  std::string Archetype;  // lower case
  std::string JumpEffect;
  std::string DockWith;
  std::string PreviousRing;
  std::string NextRing;
};

std::optional<SpacePoint> PointOf(std::string_view text) {
  const std::size_t first = text.find(',');
  if (first == std::string_view::npos) return std::nullopt;
  const std::size_t second = text.find(',', first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const SpacePoint point{Val(text.substr(0, first)),
                         Val(text.substr(first + 1, second - first - 1)),
                         Val(text.substr(second + 1))};
  for (const double side : {point.X, point.Y, point.Z}) {
    if (!(std::abs(side) <= kFarthest)) return std::nullopt;
  }
  return point;
}

class GraphReader {
 public:
  GraphReader(FailureSink& sink, Database& universe) : sink_(sink), universe_(universe) {}

  TravelGraph Read() {
    ReadSystems();
    ReadObjects();
    SortObjects();
    ReadDocks();
    LinkJumps();
    LinkLanes();
    return std::move(graph_);
  }

 private:
  void ReadSystems() {
    for (TableRows rows(sink_, universe_, "Systems"); !rows.AtEnd(); rows.MoveNext()) {
      const std::string nickname = rows.Text("nickname");
      if (nickname.empty() || systems_.contains(FoldAscii(nickname))) continue;
      TravelSystem& system = AddSystem(nickname);
      system.Name = rows.Text("realname");
      const std::string cell = rows.Text("pos");
      if (const std::size_t comma = cell.find(','); comma != std::string::npos) {
        system.Cell = {Val(cell.substr(0, comma)), Val(cell.substr(comma + 1))};
      }
    }
  }

  TravelSystem& AddSystem(const std::string& nickname) {
    systems_.emplace(FoldAscii(nickname), graph_.Systems.size());
    TravelSystem& system = graph_.Systems.emplace_back();
    system.Nickname = nickname;
    system.Key = FoldAscii(nickname);
    return system;
  }

  SystemIndex SystemOf(const std::string& nickname) {
    const auto known = systems_.find(FoldAscii(nickname));
    if (known != systems_.end()) return known->second;
    AddSystem(nickname);
    return graph_.Systems.size() - 1;
  }

  void ReadObjects() {
    std::set<std::string> known;
    for (TableRows rows(sink_, universe_, "Objects"); !rows.AtEnd(); rows.MoveNext()) {
      ObjectRow row;
      row.Object.Nickname = rows.Text("nickname");
      row.System = rows.Text("sys_nick");
      if (row.Object.Nickname.empty() || row.System.empty()) continue;
      const auto point = PointOf(rows.Text("pos"));
      if (!point) continue;
      row.Object.Key = FoldAscii(row.Object.Nickname);
      if (!known.insert(row.Object.Key).second) continue;
      row.Object.Point = *point;
      row.Object.Name = rows.Text("realname");
      row.Object.NameId = static_cast<std::int64_t>(rows.Number("ids_name"));
      row.Object.GotoText = rows.Text("goto");
      row.Archetype = FoldAscii(rows.Text("archetype"));
      row.JumpEffect = FoldAscii(rows.Text("jump_effect"));
      row.DockWith = Trim(rows.Text("dock_with"));
      row.PreviousRing = FoldAscii(Trim(rows.Text("prev_ring")));
      row.NextRing = FoldAscii(Trim(rows.Text("next_ring")));
      rows_.push_back(std::move(row));
    }
  }

  // Lanes begin in stored order; everything else goes by nickname.
  void SortObjects() {
    std::vector<std::size_t> stored(rows_.size());
    for (std::size_t i = 0; i < stored.size(); ++i) stored[i] = i;
    std::sort(stored.begin(), stored.end(), [&](std::size_t a, std::size_t b) {
      return rows_[a].Object.Key < rows_[b].Object.Key;
    });
    storedOrder_.resize(rows_.size());
    std::vector<ObjectRow> sorted;
    for (std::size_t at = 0; at < stored.size(); ++at) {
      storedOrder_[stored[at]] = at;
      sorted.push_back(std::move(rows_[stored[at]]));
    }
    rows_ = std::move(sorted);
    for (NodeIndex i = 0; i < rows_.size(); ++i) {
      TravelObject& object = rows_[i].Object;
      object.System = SystemOf(rows_[i].System);
      graph_.Systems[object.System].Objects.push_back(i);
      indexes_.emplace(object.Key, i);
      graph_.Objects.push_back(object);
    }
  }

  void ReadDocks() {
    for (TableRows rows(sink_, universe_, "DockObjects"); !rows.AtEnd(); rows.MoveNext()) {
      const auto found = indexes_.find(FoldAscii(rows.Text("nickname")));
      if (found == indexes_.end()) continue;
      const ObjectRow& row = rows_[found->second];
      TravelObject& object = graph_.Objects[found->second];
      if (object.IsDock || row.DockWith.empty() || Contains(row.Archetype, "nodock")) continue;
      object.IsDock = true;
      object.Base = row.DockWith;
      object.Owner = rows.Text("owner");
      object.Name = rows.Text("realname");
    }
  }

  void LinkJumps() {
    for (NodeIndex i = 0; i < rows_.size(); ++i) {
      const std::string_view target = GotoTarget(graph_.Objects[i].GotoText);
      if (target.empty() || Contains(rows_[i].Archetype, "nodock")) continue;
      const auto found = indexes_.find(FoldAscii(target));
      if (found == indexes_.end() || found->second == i) continue;
      const bool isHole = Contains(rows_[i].JumpEffect, "jump_effect_hole");
      graph_.Objects[i].JumpsTo = Jump{isHole ? JumpKind::Hole : JumpKind::Gate, found->second};
      graph_.Objects[found->second].IsArrival = true;
    }
  }

  void LinkLanes() {
    for (const NodeIndex first : storedOrder_) {
      if (!rows_[first].PreviousRing.empty() || rows_[first].NextRing.empty()) continue;
      TradeLaneRings lane = WalkLane(first);
      if (lane.Rings.size() < 2) continue;
      for (std::size_t ring = 0; ring < lane.Rings.size(); ++ring) {
        graph_.Objects[lane.Rings[ring]].Rings.push_back({graph_.Lanes.size(), ring});
      }
      graph_.Lanes.push_back(std::move(lane));
    }
  }

  TradeLaneRings WalkLane(NodeIndex first) const {
    TradeLaneRings lane;
    std::set<NodeIndex> walked;
    NodeIndex at = first;
    while (walked.insert(at).second) {
      if (!lane.Rings.empty()) {
        lane.Distances.push_back(
            Distance(graph_.Objects[lane.Rings.back()].Point, graph_.Objects[at].Point));
      }
      lane.Rings.push_back(at);
      const auto next = indexes_.find(rows_[at].NextRing);
      if (next == indexes_.end()) break;
      if (graph_.Objects[next->second].System != graph_.Objects[first].System) break;
      at = next->second;
    }
    return lane;
  }

  FailureSink& sink_;
  Database& universe_;
  TravelGraph graph_;
  std::vector<ObjectRow> rows_;         // as graph_.Objects
  std::vector<NodeIndex> storedOrder_;  // where the objects of the table went, in its order
  std::unordered_map<std::string, NodeIndex> indexes_;
  std::unordered_map<std::string, SystemIndex> systems_;
};

}  // namespace

std::string_view GotoTarget(std::string_view text) {
  const std::size_t first = text.find(',');
  if (first == std::string_view::npos) return {};
  text.remove_prefix(first + 1);
  return Trim(text.substr(0, text.find(',')));
}

double Distance(const SpacePoint& a, const SpacePoint& b) {
  const double x = a.X - b.X;
  const double y = a.Y - b.Y;
  const double z = a.Z - b.Z;
  return std::sqrt(x * x + y * y + z * z);
}

double TradeLaneRings::Between(std::size_t from, std::size_t to) const {
  double distance = 0;
  for (std::size_t i = std::min(from, to); i < std::max(from, to); ++i) distance += Distances[i];
  return distance;
}

std::optional<NodeIndex> TravelGraph::FindObject(std::string_view nickname) const {
  const std::string key = FoldAscii(nickname);
  const auto found = std::lower_bound(
      Objects.begin(), Objects.end(), key,
      [](const TravelObject& object, const std::string& sought) { return object.Key < sought; });
  if (found == Objects.end() || found->Key != key) return std::nullopt;
  return static_cast<NodeIndex>(found - Objects.begin());
}

std::optional<SystemIndex> TravelGraph::FindSystem(std::string_view nickname) const {
  const std::string key = FoldAscii(nickname);
  for (SystemIndex i = 0; i < Systems.size(); ++i) {
    if (Systems[i].Key == key) return i;
  }
  return std::nullopt;
}

TravelGraph ReadTravelGraph(FailureSink& sink, Database& universe) {
  return GraphReader(sink, universe).Read();
}

std::optional<JumpObstacle> ObstacleOf(const TravelGraph& graph, const TravelLimits& limits,
                                       NodeIndex jump) {
  const TravelObject& object = graph.Objects[jump];
  if (!object.JumpsTo) return JumpObstacle::Missing;
  if (limits.Closed[jump] || limits.Closed[object.JumpsTo->Target]) return JumpObstacle::Avoided;
  if (limits.NoGates && object.JumpsTo->Kind == JumpKind::Gate) return JumpObstacle::NoGates;
  if (limits.NoHoles && object.JumpsTo->Kind == JumpKind::Hole) return JumpObstacle::NoHoles;
  if (!limits.Locked.empty() && limits.Locked.contains(NicknameNumber(object.Nickname))) {
    return JumpObstacle::Locked;
  }
  return std::nullopt;
}

}  // namespace orrerix
