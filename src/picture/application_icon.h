// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace orrerix {

// The program's icon, in the sizes that desktops show.
QIcon ApplicationIcon();

}  // namespace orrerix
