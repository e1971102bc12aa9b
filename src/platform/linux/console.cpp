// SPDX-License-Identifier: MIT
#include "platform/console.h"

namespace orrerix {

ProgramArguments::ProgramArguments(int argc, const char* const* argv) : texts_(argv, argv + argc) {
  for (const std::string& text : texts_) pointers_.push_back(text.c_str());
}

void UseUtf8Output() {}

}  // namespace orrerix
