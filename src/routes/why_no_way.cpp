// SPDX-License-Identifier: MIT
#include "routes/why_no_way.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orrerix {
namespace {

class Explanation {
 public:
  Explanation(const TravelGraph& graph, const TravelModel& model, const TravelWishes& wishes,
              const std::set<std::uint32_t>& locked, const TravelPlace& from, const TravelPlace& to)
      : graph_(graph),
        model_(model),
        wishes_(wishes),
        locked_(locked),
        from_(from),
        to_(to),
        limits_(LimitsOf(graph, wishes, locked)),
        times_(TimesFrom(graph, model, limits_, from)) {
    for (NodeIndex i = 0; i < times_.size(); ++i) {
      if (times_[i]) reached_.insert(graph.Objects[i].System);
    }
  }

  WhyNoWay Explain() const {
    WhyNoWay why;
    why.Items = Items();
    why.AllTogether = HasWishes() && HasWay(TravelWishes{});
    why.Blocked = Blocked();
    why.Entrances = Entrances();
    why.Nearest = Nearest();
    return why;
  }

 private:
  bool HasWay(const TravelWishes& wishes) const {
    return FastestWay(graph_, model_, LimitsOf(graph_, wishes, locked_), from_, to_).has_value();
  }

  bool HasWishes() const {
    return !wishes_.Avoid.empty() || !wishes_.AvoidFactions.empty() || wishes_.NoGates ||
           wishes_.NoHoles || wishes_.NoLocked;
  }

  std::vector<WishItem> Items() const {
    std::vector<WishItem> items;
    const auto addEach = [&](std::vector<std::string> TravelWishes::*list, const char* option) {
      const std::vector<std::string>& names = wishes_.*list;
      for (std::size_t i = 0; i < names.size(); ++i) {
        TravelWishes fewer = wishes_;
        auto& left = fewer.*list;
        left.erase(left.begin() + static_cast<std::ptrdiff_t>(i));
        if (HasWay(fewer)) items.push_back({option, names[i]});
      }
    };
    const auto addSwitch = [&](bool TravelWishes::*wish, const char* option) {
      if (!(wishes_.*wish)) return;
      TravelWishes fewer = wishes_;
      fewer.*wish = false;
      if (HasWay(fewer)) items.push_back({option, std::nullopt});
    };
    addEach(&TravelWishes::Avoid, "avoid");
    addEach(&TravelWishes::AvoidFactions, "avoid-faction");
    addSwitch(&TravelWishes::NoGates, "no-gates");
    addSwitch(&TravelWishes::NoHoles, "no-holes");
    addSwitch(&TravelWishes::NoLocked, "no-locked");
    return items;
  }

  // A target that is not there is in no system, whatever system is written beside it.
  bool LeadsToReachedSystem(std::string_view target) const {
    const auto object = graph_.FindObject(target);
    return object && reached_.contains(graph_.Objects[*object].System);
  }

  std::vector<BlockedJump> Blocked() const {
    std::vector<BlockedJump> blocked;
    for (NodeIndex i = 0; i < graph_.Objects.size(); ++i) {
      const TravelObject& object = graph_.Objects[i];
      if (object.GotoText.empty() || !reached_.contains(object.System)) continue;
      const auto obstacle = ObstacleOf(graph_, limits_, i);
      const std::string_view target = GotoTarget(object.GotoText);
      if (!obstacle || LeadsToReachedSystem(target)) continue;
      blocked.push_back({i, std::string(target), *obstacle});
    }
    return blocked;
  }

  int Entrances() const {
    const std::set<SystemIndex> targets = SystemsOf(graph_, to_.Nodes);
    return static_cast<int>(std::count_if(
        graph_.Objects.begin(), graph_.Objects.end(), [&](const TravelObject& object) {
          return object.JumpsTo && !targets.contains(object.System) &&
                 targets.contains(graph_.Objects[object.JumpsTo->Target].System);
        }));
  }

  // The straight distance on the map between a system and the nearest one of the target.
  std::optional<double> CellsTo(const TravelSystem& system) const {
    std::optional<double> nearest;
    if (!system.Cell) return nearest;
    for (const SystemIndex target : SystemsOf(graph_, to_.Nodes)) {
      const auto& cell = graph_.Systems[target].Cell;
      if (!cell) continue;
      const double x = system.Cell->first - cell->first;
      const double y = system.Cell->second - cell->second;
      const double cells = std::sqrt(x * x + y * y);
      if (!nearest || cells < *nearest) nearest = cells;
    }
    return nearest;
  }

  std::optional<NearestSystem> Nearest() const {
    std::optional<NearestSystem> best;
    const auto rank = [&](const NearestSystem& each) {
      return std::tuple(each.Cells, each.Time, std::string_view(graph_.Systems[each.System].Key));
    };
    for (const SystemIndex system : reached_) {
      const auto cells = CellsTo(graph_.Systems[system]);
      if (!cells) continue;
      std::optional<NearestSystem> candidate;
      for (const NodeIndex node : graph_.Systems[system].Objects) {
        if (times_[node] && (!candidate || *times_[node] < candidate->Time)) {
          candidate = NearestSystem{system, node, *times_[node], *cells};
        }
      }
      if (!best || rank(*candidate) < rank(*best)) best = candidate;
    }
    return best;
  }

  const TravelGraph& graph_;
  const TravelModel& model_;
  const TravelWishes& wishes_;
  const std::set<std::uint32_t>& locked_;
  const TravelPlace& from_;
  const TravelPlace& to_;
  TravelLimits limits_;
  std::vector<std::optional<std::int64_t>> times_;
  std::set<SystemIndex> reached_;
};

}  // namespace

TravelLimits LimitsOf(const TravelGraph& graph, const TravelWishes& wishes,
                      const std::set<std::uint32_t>& locked) {
  TravelLimits limits;
  limits.Closed.resize(graph.Objects.size());
  limits.Forbidden.resize(graph.Objects.size());
  for (const std::string& name : wishes.Avoid) {
    for (const NodeIndex node : NodesToAvoid(graph, name)) limits.Closed[node] = true;
  }
  for (const std::string& faction : wishes.AvoidFactions) {
    for (const NodeIndex node : DocksOfFaction(graph, faction)) limits.Forbidden[node] = true;
  }
  limits.NoGates = wishes.NoGates;
  limits.NoHoles = wishes.NoHoles;
  if (wishes.NoLocked) limits.Locked = locked;
  return limits;
}

WhyNoWay ExplainNoWay(const TravelGraph& graph, const TravelModel& model,
                      const TravelWishes& wishes, const std::set<std::uint32_t>& locked,
                      const TravelPlace& from, const TravelPlace& to) {
  return Explanation(graph, model, wishes, locked, from, to).Explain();
}

}  // namespace orrerix
