// SPDX-License-Identifier: MIT
// A program's output, read while it runs.
#pragma once

#include <cstdio>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace orrerix {

// Starts a command of the system's shell.
inline FILE* OpenPipe(const std::string& command) {
#ifdef _WIN32
  // The shell takes the outer pair of quotes off.
  return _popen(("\"" + command + "\"").c_str(), "rb");
#else
  return popen(command.c_str(), "r");
#endif
}

// Waits for the end of the program and returns its exit code.
inline int ClosePipe(FILE* pipe) {
#ifdef _WIN32
  return _pclose(pipe);
#else
  return WEXITSTATUS(pclose(pipe));
#endif
}

}  // namespace orrerix
