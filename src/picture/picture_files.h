// SPDX-License-Identifier: MIT
// Where the pictures of controls come from.
#pragma once

#include <QString>

#include "map/drawing_list.h"

namespace orrerix {

// The file of a picture control. Its `Picture` is its own name, if it carries a built-in picture
// (those of systems go by the index); the name of an icon ("Jumpgate"); a file below the built-in
// pictures ("tools/print.svg"); or the absolute path of the player's own file.
QString PictureFile(const Control& control);

}  // namespace orrerix
