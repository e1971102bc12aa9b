// SPDX-License-Identifier: MIT
// A program's output, read while it runs.
#pragma once

#include <cstdio>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace orrerix {

// Starts a command of the system's shell. Words may stand in single quotes.
inline FILE* OpenPipe(std::string command) {
#ifdef _WIN32
  const auto isEdge = [&command](std::size_t at) {
    return at >= command.size() || command[at] == ' ';
  };
  for (std::size_t at = 1; at < command.size(); ++at) {
    if (command[at] == '\'' && (isEdge(at - 1) || isEdge(at + 1))) command[at] = '"';
  }
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
