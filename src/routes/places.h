// SPDX-License-Identifier: MIT
// What a player's names of places and factions stand for.
#pragma once

#include <string_view>
#include <vector>

#include "routes/travel_graph.h"

namespace orrerix {

// The docks or other places that a name stands for.
struct TravelPlace {
  std::vector<NodeIndex> Nodes;  // in text order; empty: there is no such place
  bool AreDocks = false;         // one launches from them and docks at them
};

// The nickname of a row as a search prints it, nickname, tab and name; a text without a tab as it
// is. All names below may be such rows.
std::string_view NicknameOfRow(std::string_view row);

// A place of a way, the first that fits: an object by its nickname; the docks of a base; all nodes
// of a system by its nickname; docks by their name, also where "Dockring: " stands before it;
// systems by their name; other objects by theirs. Systems, and an object that is no dock, are
// reached without docking.
TravelPlace PlaceOfWay(const TravelGraph& graph, std::string_view name);

// A place of a trade, found in the same order: only docks count, those of a system if it is one.
std::vector<NodeIndex> DocksOfTrade(const TravelGraph& graph, std::string_view name);

// What a player who avoids a name keeps away from: all nodes of a system, else an object, else the
// docks of a base. Empty if there is none of these.
std::vector<NodeIndex> NodesToAvoid(const TravelGraph& graph, std::string_view name);

// The docks that a faction owns.
std::vector<NodeIndex> DocksOfFaction(const TravelGraph& graph, std::string_view faction);

// Whether a faction is known: in table Groups, or as an owner of a dock.
bool IsFaction(FailureSink& sink, Database& universe, const TravelGraph& graph,
               std::string_view faction);

// The systems with a nickname, else with a name.
std::set<SystemIndex> SystemsCalled(const TravelGraph& graph, std::string_view name);

// The systems in which nodes are.
std::set<SystemIndex> SystemsOf(const TravelGraph& graph, const std::vector<NodeIndex>& nodes);

// The numbers of the jumps that the story keeps locked: those of table `locked_gates`, which keeps
// one line of each block, and with a game those of all lines of its files of type "groups".
std::set<std::uint32_t> LockedNumbers(FailureSink& sink, Database& universe,
                                      const GameFolder* game);

}  // namespace orrerix
