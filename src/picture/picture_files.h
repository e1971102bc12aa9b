// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "map/drawing_list.h"

namespace orrerix {

// The file behind a picture control's `Picture`: the name of a control that carries a built-in
// picture ("Jumpgate", "StarMapPic"; "SysMapGfx" goes by the index), a file below the built-in
// pictures ("tools/print.svg"), or the absolute path of the player's own file.
QString PictureFile(const Control& control);

}  // namespace orrerix
