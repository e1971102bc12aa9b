// SPDX-License-Identifier: MIT
// A console program's arguments and output, in UTF-8 on every system.
#pragma once

#include <string>
#include <vector>

namespace orrerix {

// The arguments of the program, its own name first, in the form that `main` gets them.
class ProgramArguments {
 public:
  // Takes what `main` got; on Windows the system's own command line instead, which has characters
  // beyond the code page.
  ProgramArguments(int argc, const char* const* argv);
  ProgramArguments(const ProgramArguments&) = delete;
  ProgramArguments& operator=(const ProgramArguments&) = delete;

  int Count() const { return static_cast<int>(texts_.size()); }
  const char* const* Texts() const { return pointers_.data(); }

 private:
  std::vector<std::string> texts_;
  std::vector<const char*> pointers_;
};

// Lets standard output and error take UTF-8 and every byte as it is. On Windows a console shows it,
// and lines end as on other systems.
void UseUtf8Output();

}  // namespace orrerix
