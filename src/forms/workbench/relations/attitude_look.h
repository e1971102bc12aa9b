// SPDX-License-Identifier: MIT
// How attitudes of factions look: a symbol, and a color from orange to blue, which people tell
// apart whatever colors they see; the extremes are also the darkest.
#pragma once

#include <QColor>
#include <QString>

#include "shell/text_id.h"
#include "space/relations.h"

namespace orrerix {

struct AttitudeLook {
  QString Symbol;
  QColor Ground;  // not valid: that of the table
  QColor Letters;
  TextId Name;
};

AttitudeLook LookOf(Attitude attitude);

}  // namespace orrerix
