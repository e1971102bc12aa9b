// SPDX-License-Identifier: MIT
#include "derived/trade_lanes.h"

#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "db/schema.h"
#include "db/values/text.h"
#include "derived/lookup.h"
#include "derived/system_grid.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// One end of a lane. What a failed step leaves unset keeps its last content.
struct LaneEnd {
  std::string Nickname;
  std::string RealName;
  MapCell Cell;
  CellFraction Place;
};

class LaneStage {
 public:
  LaneStage(Routine& routine, Universe& universe, ImportHost& host)
      : routine_(routine), universe_(universe), host_(host), grid_(routine, universe) {}

  void Run() {
    universe_.DB.CreateHeldTable(routine_, TradeLanesTable());
    lanes_ = universe_.DB.OpenTable(routine_, "TradeLanes");
    for (Recordset starts = OpenStarts(); !starts.AtEnd(); starts.MoveNext()) {
      routine_.Try([&] { Walk(starts); });
      host_.Yield();
    }
  }

 private:
  // All rings with a next one whose text for the one before is empty, not Null.
  Recordset OpenStarts() {
    std::vector<std::int64_t> numbers;
    universe_.DB.VisitRows(
        routine_, "Objects", {"prev_ring", "next_ring"},
        [&](std::int64_t number, std::span<const HeldRows::Cell> object) {
          const auto* before = std::get_if<std::string_view>(&object[0]);
          const auto* next = std::get_if<std::string_view>(&object[1]);
          if (before != nullptr && before->empty() && next != nullptr && !next->empty()) {
            numbers.push_back(number);
          }
        });
    return universe_.DB.OpenRows(routine_, "Objects", std::move(numbers), RecordsetType::Snapshot);
  }

  void Walk(Recordset& start) {
    TakeEnd(first_, start);
    first_.Nickname = routine_.Or(first_.Nickname, [&] { return start["nickname"].Get().Text(); });
    Recordset end =
        LastRing(routine_.Or(std::string(), [&] { return start["next_ring"].Get().Text(); }));
    last_.Place = {};
    last_.Nickname.clear();
    if (!end.AtEnd()) {
      TakeEnd(last_, end);
      last_.Nickname = routine_.Or(last_.Nickname,
                                   [&] { return std::string(Trim(end["nickname"].Get().Text())); });
    }
    if (!last_.Nickname.empty() && !IsRecorded(last_.Nickname)) Append();
  }

  // Follows the rings to the end of the chain or to the one before it meets itself. Without a row
  // if a ring is missing.
  Recordset LastRing(std::string target) {
    std::unordered_set<std::string> visited;
    Recordset ring;
    while (!target.empty()) {
      ring = ObjectNamed(routine_, universe_, target);
      if (ring.AtEnd()) {
        routine_.Try([&] {
          universe_.Log.AddErrorLine(fmt::format(
              "FL-MOD-ERROR Searching target Tradelane <{}> for <{}>", target, first_.Nickname));
        });
        break;
      }
      visited.insert(Ucase(target));
      target =
          routine_.Or(target, [&] { return std::string(Trim(ring["next_ring"].Get().Text())); });
      if (visited.contains(Ucase(target))) break;
    }
    return ring;
  }

  void TakeEnd(LaneEnd& end, Recordset& ring) {
    end.Cell = routine_.Or(end.Cell, [&] { return grid_.FindCell(ring["sys_nick"].Get().Text()); });
    const double scale = grid_.Scale(end.Cell);
    end.Place = routine_.Or(end.Place, [&] {
      return PlaceObject(routine_, ring["pos"].Get().Text(), scale, end.Place).Place;
    });
    routine_.Try([&] { end.RealName = ring["realspacename"].Get().Text(); });
    if (end.RealName.empty()) end.RealName = "Unknown";
  }

  bool IsRecorded(const std::string& nickname) {
    return !RowNamed(routine_, universe_, "TradeLanes", nickname).AtEnd();
  }

  void Append() {
    lanes_.AddNew();
    lanes_["nickname"] = first_.Nickname;
    lanes_["nickname2"] = last_.Nickname;
    lanes_["realname"] = first_.RealName;
    lanes_["realname2"] = last_.RealName;
    lanes_["MapX1"] = first_.Cell.X;
    lanes_["MapY1"] = first_.Cell.Y;
    lanes_["MapX2"] = last_.Cell.X;
    lanes_["MapY2"] = last_.Cell.Y;
    lanes_["PosX1"] = first_.Place.X;
    lanes_["PosY1"] = first_.Place.Y;
    lanes_["PosX2"] = last_.Place.X;
    lanes_["PosY2"] = last_.Place.Y;
    lanes_.Update();
  }

  Routine& routine_;
  Universe& universe_;
  ImportHost& host_;
  SystemGrid grid_;
  Recordset lanes_;
  LaneEnd first_;
  LaneEnd last_;
};

}  // namespace

void CalcTradeLanes(Universe& universe, ImportHost& host) {
  Routine routine(universe.Log, "OrrerixMain.CalcTradeLanes");
  routine.Run([&] { LaneStage(routine, universe, host).Run(); });
}

}  // namespace orrerix
