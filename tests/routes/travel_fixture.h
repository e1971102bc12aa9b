// SPDX-License-Identifier: MIT
// Small universes for ways and trades.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "routes/fastest_way.h"
#include "routes/market.h"
#include "routes/why_no_way.h"
#include "support/universe_fixture.h"

namespace orrerix {

class TravelFixture : public UniverseFixture {
 protected:
  TravelFixture() {
    db.CreateTable(mustWork, DockObjectsTable());
    // Round numbers: flying 300 units takes a second, and cruise starts at once.
    model.ChargeSeconds = 0;
    model.ImpulseSpeed = 1;
  }

  void System(std::string_view nickname, std::string_view cell = "1, 1") {
    Add("Systems", {{"nickname", nickname}, {"realname", nickname}, {"pos", cell}});
  }
  void Object(std::string_view nickname, std::string_view system, std::string_view pos,
              Fields more = {}) {
    Recordset rows = db.OpenTable(mustWork, "Objects");
    rows.AddNew();
    rows["nickname"] = nickname;
    rows["realname"] = nickname;
    rows["sys_nick"] = system;
    rows["pos"] = pos;
    for (const auto& [name, value] : more) rows[name] = value;
    rows.Update();
  }
  void Dock(std::string_view nickname, std::string_view system, std::string_view pos,
            std::string_view owner = "", std::string_view base = "") {
    const std::string ownBase = base.empty() ? std::string(nickname) + "_base" : std::string(base);
    Object(nickname, system, pos, {{"dock_with", ownBase}});
    Add("DockObjects", {{"nickname", nickname}, {"realname", nickname}, {"owner", owner}});
  }
  void Jump(std::string_view nickname, std::string_view system, std::string_view pos,
            std::string_view destination, bool hole = false) {
    Object(nickname, system, pos,
           {{"goto", destination},
            {"jump_effect", hole ? "Jump_Effect_Hole_Blue" : "jump_effect_bretonia"}});
  }
  // Rings of a lane in a row along the x axis.
  void Lane(std::string_view system, const std::vector<std::pair<std::string, int>>& rings) {
    for (std::size_t i = 0; i < rings.size(); ++i) {
      Object(rings[i].first, system, std::to_string(rings[i].second) + ", 0, 0",
             {{"prev_ring", i == 0 ? "" : rings[i - 1].first},
              {"next_ring", i + 1 == rings.size() ? "" : rings[i + 1].first}});
    }
  }

  const TravelGraph& Graph() {
    if (graph_.Objects.empty()) graph_ = ReadTravelGraph(mustWork, db);
    return graph_;
  }
  TravelLimits Limits() { return LimitsOf(Graph(), wishes, locked); }
  std::optional<Way> WayBetween(std::string_view from, std::string_view to) {
    return FastestWay(Graph(), model, Limits(), PlaceOfWay(Graph(), from), PlaceOfWay(Graph(), to));
  }

  // The legs of a way as "kind to".
  std::vector<std::string> LegsOf(const Way& way) {
    static constexpr std::array<const char*, 6> names = {"launch", "gate", "hole",
                                                         "lane",   "fly",  "dock"};
    std::vector<std::string> legs;
    for (const WayLeg& leg : way.Legs) {
      legs.push_back(std::string(names[static_cast<std::size_t>(leg.Kind)]) + " " +
                     Graph().Objects[leg.To].Nickname);
    }
    return legs;
  }
  std::vector<std::string> LegsBetween(std::string_view from, std::string_view to) {
    const auto way = WayBetween(from, to);
    return way ? LegsOf(*way) : std::vector<std::string>{"no way"};
  }
  std::string Nickname(NodeIndex node) { return Graph().Objects[node].Nickname; }

  TravelModel model;
  TravelWishes wishes;
  std::set<std::uint32_t> locked;

 private:
  TravelGraph graph_;
};

}  // namespace orrerix
