// SPDX-License-Identifier: MIT
// What the system tells somebody who watches a folder.
#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

namespace orrerix {

// Wine reports nothing of the folders below a watched one, as Windows does.
inline bool ReportsFoldersBelow() {
#ifdef _WIN32
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
#else
  return true;
#endif
}

}  // namespace orrerix
