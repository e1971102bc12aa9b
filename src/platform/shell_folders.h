// SPDX-License-Identifier: MIT
// The user's own folders where no registry names them.
#pragma once

#include <string>

namespace orrerix {

enum class ShellFolder { Desktop, Programs, Personal };

// The folder as this desktop defines it; the home folder's customary subfolder if it defines none.
std::string DefaultShellFolder(ShellFolder folder);

}  // namespace orrerix
