// SPDX-License-Identifier: MIT
#include "platform/shell_folders.h"

#include <shlobj.h>

#include "platform/path_text.h"
#include "platform/windows/known_folder.h"

namespace orrerix {
namespace {

const KNOWNFOLDERID& IdentityOf(ShellFolder folder) {
  switch (folder) {
    case ShellFolder::Desktop:
      return FOLDERID_Desktop;
    case ShellFolder::Programs:
      return FOLDERID_Programs;
    case ShellFolder::Personal:
      break;
  }
  return FOLDERID_Documents;
}

}  // namespace

std::string DefaultShellFolder(ShellFolder folder) {
  return TextOf(KnownFolder(IdentityOf(folder)));
}

}  // namespace orrerix
