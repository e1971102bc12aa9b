// SPDX-License-Identifier: MIT
// Names of controls in Qt's object tree.
#pragma once

#include <QString>

#include "map/control_id.h"

namespace orrerix {

inline QString NameOf(ControlId id) {
  return QString::fromStdString(ObjectName(id));
}
inline QString NameOf(ControlId id, int index) {
  return QString::fromStdString(ObjectName(id, index));
}

}  // namespace orrerix
