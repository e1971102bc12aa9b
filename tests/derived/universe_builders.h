// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "support/universe_fixture.h"

namespace orrerix {

// A universe fixture that speaks of systems, gates and rings.
class DerivedFixture : public UniverseFixture {
 protected:
  void System(std::string_view nickname, std::string_view pos, std::string_view scale = "") {
    Add("Systems",
        {{"nickname", nickname}, {"realname", nickname}, {"pos", pos}, {"navmapscale", scale}});
  }

  struct ObjectFields {
    std::string_view Pos = "0, 0, 0";
    std::string_view System = "li01";
    std::string_view JumpEffect = "";
    std::string_view Goto = "";
    std::string_view PrevRing = "";
    std::string_view NextRing = "";
    std::string_view SpaceName = "";
    std::string_view DockWith = "";
    std::string_view Loadout = "";
    std::string_view Reputation = "";
    std::string_view RealName = "";
  };

  // An object as the reader leaves it: texts that its block lacks are empty.
  void Object(std::string_view nickname, const ObjectFields& fields) {
    Add("Objects", {{"nickname", nickname},
                    {"realname", fields.RealName},
                    {"pos", fields.Pos},
                    {"sys_nick", fields.System},
                    {"jump_effect", fields.JumpEffect},
                    {"goto", fields.Goto},
                    {"prev_ring", fields.PrevRing},
                    {"next_ring", fields.NextRing},
                    {"realspacename", fields.SpaceName},
                    {"dock_with", fields.DockWith},
                    {"loadout", fields.Loadout},
                    {"reputation", fields.Reputation}});
  }

  std::vector<int> FailureNumbers() const {
    std::vector<int> numbers;
    for (const FailureEntry& entry : log.Failures()) numbers.push_back(entry.What.Number);
    return numbers;
  }
};

}  // namespace orrerix
