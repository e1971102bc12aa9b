// SPDX-License-Identifier: MIT
#include "routes/places.h"

#include <algorithm>
#include <string>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "routes/game_lines.h"
#include "routes/table_rows.h"

namespace orrerix {
namespace {

constexpr std::string_view kRingName = "Dockring: ";

template <typename Matches>
std::vector<NodeIndex> ObjectsThat(const TravelGraph& graph, const Matches& matches) {
  std::vector<NodeIndex> nodes;
  for (NodeIndex i = 0; i < graph.Objects.size(); ++i) {
    if (matches(graph.Objects[i])) nodes.push_back(i);
  }
  return nodes;
}

std::vector<NodeIndex> DocksOfBase(const TravelGraph& graph, std::string_view base) {
  return ObjectsThat(graph, [&](const TravelObject& object) {
    return object.IsDock && EqualIgnoringCase(object.Base, base);
  });
}

std::vector<NodeIndex> DocksNamed(const TravelGraph& graph, std::string_view name) {
  return ObjectsThat(graph, [&](const TravelObject& object) {
    std::string_view own = object.Name;
    if (!object.IsDock) return false;
    if (EqualIgnoringCase(own, name)) return true;
    return EqualIgnoringCase(Left(own, Len(kRingName)), kRingName) &&
           EqualIgnoringCase(own.substr(kRingName.size()), name);
  });
}

std::vector<NodeIndex> ObjectsNamed(const TravelGraph& graph, std::string_view name) {
  return ObjectsThat(graph, [name](const TravelObject& object) {
    return !name.empty() && EqualIgnoringCase(object.Name, name);
  });
}

std::vector<NodeIndex> NodesOfSystem(const TravelGraph& graph, SystemIndex system) {
  std::vector<NodeIndex> nodes;
  for (const NodeIndex node : graph.Systems[system].Objects) {
    if (graph.Objects[node].IsNode()) nodes.push_back(node);
  }
  return nodes;
}

std::vector<NodeIndex> NodesOfSystemsNamed(const TravelGraph& graph, std::string_view name) {
  std::vector<NodeIndex> nodes;
  for (SystemIndex i = 0; i < graph.Systems.size(); ++i) {
    if (name.empty() || !EqualIgnoringCase(graph.Systems[i].Name, name)) continue;
    const auto own = NodesOfSystem(graph, i);
    nodes.insert(nodes.end(), own.begin(), own.end());
  }
  std::sort(nodes.begin(), nodes.end());
  return nodes;
}

std::uint32_t LockedNumber(std::string_view text) {
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(Val(text)));
}

}  // namespace

std::string_view NicknameOfRow(std::string_view row) {
  return row.substr(0, row.find('\t'));
}

TravelPlace PlaceOfWay(const TravelGraph& graph, std::string_view name) {
  name = NicknameOfRow(name);
  if (const auto object = graph.FindObject(name)) {
    return {{*object}, graph.Objects[*object].IsDock};
  }
  if (auto docks = DocksOfBase(graph, name); !docks.empty()) return {std::move(docks), true};
  if (const auto system = graph.FindSystem(name)) return {NodesOfSystem(graph, *system), false};
  if (auto docks = DocksNamed(graph, name); !docks.empty()) return {std::move(docks), true};
  if (auto nodes = NodesOfSystemsNamed(graph, name); !nodes.empty()) {
    return {std::move(nodes), false};
  }
  return {ObjectsNamed(graph, name), false};
}

std::vector<NodeIndex> DocksOfTrade(const TravelGraph& graph, std::string_view name) {
  std::vector<NodeIndex> nodes = PlaceOfWay(graph, name).Nodes;
  std::erase_if(nodes, [&](NodeIndex node) { return !graph.Objects[node].IsDock; });
  return nodes;
}

std::vector<NodeIndex> NodesToAvoid(const TravelGraph& graph, std::string_view name) {
  name = NicknameOfRow(name);
  if (const auto system = graph.FindSystem(name)) return graph.Systems[*system].Objects;
  if (const auto object = graph.FindObject(name)) return {*object};
  return DocksOfBase(graph, name);
}

std::vector<NodeIndex> DocksOfFaction(const TravelGraph& graph, std::string_view faction) {
  faction = NicknameOfRow(faction);
  return ObjectsThat(graph, [&](const TravelObject& object) {
    return object.IsDock && EqualIgnoringCase(object.Owner, faction);
  });
}

bool IsFaction(FailureSink& sink, Database& universe, const TravelGraph& graph,
               std::string_view faction) {
  faction = NicknameOfRow(faction);
  for (TableRows groups(sink, universe, "Groups"); !groups.AtEnd(); groups.MoveNext()) {
    if (EqualIgnoringCase(groups.Text("NickName"), faction)) return true;
  }
  return !DocksOfFaction(graph, faction).empty();
}

std::set<SystemIndex> SystemsCalled(const TravelGraph& graph, std::string_view name) {
  name = NicknameOfRow(name);
  if (const auto system = graph.FindSystem(name)) return {*system};
  std::set<SystemIndex> systems;
  for (SystemIndex i = 0; i < graph.Systems.size(); ++i) {
    if (!name.empty() && EqualIgnoringCase(graph.Systems[i].Name, name)) systems.insert(i);
  }
  return systems;
}

std::set<SystemIndex> SystemsOf(const TravelGraph& graph, const std::vector<NodeIndex>& nodes) {
  std::set<SystemIndex> systems;
  for (const NodeIndex node : nodes) systems.insert(graph.Objects[node].System);
  return systems;
}

std::set<std::uint32_t> LockedNumbers(FailureSink& sink, Database& universe,
                                      const GameFolder* game) {
  std::set<std::uint32_t> numbers;
  for (TableRows rows(sink, universe, "locked_gates"); !rows.AtEnd(); rows.MoveNext()) {
    if (!rows.IsEmpty("locked_gate")) numbers.insert(LockedNumber(rows.Text("locked_gate")));
  }
  if (game == nullptr) return numbers;
  for (TableRows files(sink, universe, "DataFiles"); !files.AtEnd(); files.MoveNext()) {
    if (!EqualIgnoringCase(files.Text("type"), "groups")) continue;
    ForEachGameLine(*game, "\\data\\" + files.Text("pathfile"), [&](const GameLine& line) {
      if (EqualIgnoringCase(line.Section, "locked_gates") &&
          EqualIgnoringCase(line.Key, "locked_gate")) {
        numbers.insert(LockedNumber(line.Value));
      }
    });
  }
  return numbers;
}

}  // namespace orrerix
