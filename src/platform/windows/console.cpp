// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <shlobj.h>
#include <windows.h>

#include "platform/windows/wide_text.h"

namespace orrerix {

ProgramArguments::ProgramArguments(int argc, const char* const* argv) {
  int count = 0;
  if (wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count)) {
    for (int i = 0; i < count; ++i) texts_.push_back(NarrowOf(words[i]));
    LocalFree(words);
  } else {
    texts_.assign(argv, argv + argc);
  }
  for (const std::string& text : texts_) pointers_.push_back(text.c_str());
}

void UseUtf8Output() {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

}  // namespace orrerix
