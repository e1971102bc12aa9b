// SPDX-License-Identifier: MIT
#include "derived/jump_objects.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "db/schema.h"
#include "db/values/text.h"
#include "derived/lookup.h"
#include "derived/system_grid.h"
#include "import/ini/block_text.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// One end of a connection. What a failed step leaves unset keeps its last content.
struct JumpEnd {
  std::string Nickname;
  MapCell Cell;
  double Scale = 1;
  CellFraction Place;
};

class JumpStage {
 public:
  JumpStage(Routine& routine, Universe& universe, ImportHost& host)
      : routine_(routine), universe_(universe), host_(host), grid_(routine, universe) {}

  void Run() {
    universe_.DB.CreateHeldTable(routine_, JumpNodesTable());
    nodes_ = universe_.DB.OpenTable(routine_, "JumpNodes");
    for (Recordset objects = OpenJumps(); !objects.AtEnd(); objects.MoveNext()) {
      routine_.Try([&] { Connect(objects); });
      host_.Yield();
    }
  }

 private:
  // All objects with a jump effect, ordered by it.
  Recordset OpenJumps() {
    struct Jump {
      std::string Effect;
      std::int64_t Number;
    };
    std::vector<Jump> jumps;
    universe_.DB.VisitRows(routine_, "Objects", {"jump_effect"},
                           [&](std::int64_t number, std::span<const HeldRows::Cell> object) {
                             std::string effect = HeldRows::ValueOf(object[0]).TakeText();
                             if (!effect.empty()) jumps.push_back({std::move(effect), number});
                           });
    std::sort(jumps.begin(), jumps.end(), [](const Jump& a, const Jump& b) {
      const int order = CompareIgnoringCase(a.Effect, b.Effect);
      return order != 0 ? order < 0 : a.Number < b.Number;
    });
    std::vector<std::int64_t> numbers;
    numbers.reserve(jumps.size());
    for (const Jump& jump : jumps) numbers.push_back(jump.Number);
    return universe_.DB.OpenRows(routine_, "Objects", std::move(numbers), RecordsetType::Snapshot);
  }

  void Connect(Recordset& object) {
    const std::string target = TextOf(object, "goto");
    from_.Nickname = routine_.Or(from_.Nickname, [&] { return object["nickname"].Get().Text(); });
    Locate(from_, TextOf(object, "sys_nick"));
    const std::string system =
        routine_.Or(target, [&] { return std::string(RequireBeforeComma(target)); });
    Locate(to_, system);
    from_.Place = PlaceObject(routine_, TextOf(object, "pos"), from_.Scale, from_.Place).Place;

    to_.Nickname = TargetNickname(target);
    to_.Place = {};
    Recordset found = ObjectNamed(routine_, universe_, to_.Nickname);
    if (found.AtEnd()) return;
    to_.Place = PlaceObject(routine_, TargetPosition(found), to_.Scale, to_.Place).Place;
    to_.Nickname = found["nickname"].Get().Text();
    if (IsRecorded(to_.Nickname)) return;
    Append(TextOf(object, "jump_effect"));
  }

  std::string TextOf(Recordset& row, std::string_view field) {
    return routine_.Or(std::string(), [&] { return row[field].Get().Text(); });
  }

  void Locate(JumpEnd& end, std::string_view system) {
    end.Cell = routine_.Or(end.Cell, [&] { return grid_.FindCell(system); });
    end.Scale = grid_.Scale(end.Cell);
  }

  // The second of the parts of `GoTo`.
  std::string TargetNickname(std::string_view target) {
    const CommaCut system = CutAtComma(target);
    std::string_view nickname = system.Found ? system.After : system.Before;
    nickname = routine_.Or(nickname, [&] { return RequireBeforeComma(nickname); });
    return std::string(Trim(nickname));
  }

  std::string TargetPosition(Recordset& target) {
    std::string pos = target["pos"].Get().Text();
    if (Contains(pos, ",")) return pos;
    universe_.Log.AddErrorLine(
        fmt::format("*=== FL-MOD-ERROR: Objekt {} has no POS = x,z,y! ===*", to_.Nickname));
    return "0,0,0";
  }

  // The connection is recorded if its other end was visited before.
  bool IsRecorded(const std::string& nickname) {
    return !RowNamed(routine_, universe_, "JumpNodes", nickname).AtEnd();
  }

  void Append(const std::string& jumpEffect) {
    nodes_.AddNew();
    nodes_["nickname"] = from_.Nickname;
    nodes_["nickname2"] = to_.Nickname;
    nodes_["MapX1"] = from_.Cell.X;
    nodes_["MapY1"] = from_.Cell.Y;
    nodes_["MapX2"] = to_.Cell.X;
    nodes_["MapY2"] = to_.Cell.Y;
    nodes_["PosX1"] = from_.Place.X;
    nodes_["PosY1"] = from_.Place.Y;
    nodes_["PosX2"] = to_.Place.X;
    nodes_["PosY2"] = to_.Place.Y;
    nodes_["Type"] = Contains(Ucase(jumpEffect), "JUMP_EFFECT_HOLE") ? kJumpHole : kJumpGate;
    nodes_.Update();
  }

  Routine& routine_;
  Universe& universe_;
  ImportHost& host_;
  SystemGrid grid_;
  Recordset nodes_;
  JumpEnd from_;
  JumpEnd to_;
};

}  // namespace

void CalcJumpObjects(Universe& universe, ImportHost& host) {
  Routine routine(universe.Log, "OrrerixMain.CalcJumpObjects",
                  "While calculating jump-gates/-holes");
  routine.Run([&] { JumpStage(routine, universe, host).Run(); });
}

}  // namespace orrerix
