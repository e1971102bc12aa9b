// SPDX-License-Identifier: MIT
#include "forms/workbench/relations/attitude_look.h"

namespace orrerix {

AttitudeLook LookOf(Attitude attitude) {
  switch (attitude) {
    case Attitude::Hostile:
      return {"\u2212\u2212", QColor(0xFFD55E00), Qt::black, TextId::RelationHostile};
    case Attitude::Unfriendly:
      return {"\u2212", QColor(0xFFF6C89F), Qt::black, TextId::RelationUnfriendly};
    case Attitude::Friendly:
      return {"+", QColor(0xFFA9D3F2), Qt::black, TextId::RelationFriendly};
    case Attitude::Allied:
      return {"++", QColor(0xFF0068A8), Qt::white, TextId::RelationAllied};
    default:
      return {"\u00B7", {}, {}, TextId::RelationNeutral};
  }
}

}  // namespace orrerix
