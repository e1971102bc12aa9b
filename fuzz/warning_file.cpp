// SPDX-License-Identifier: MIT
#include "online/spoiler_warning.h"
#include "support.h"

// The input is a mod's file with texts of its own for the warning.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix;
  WithModTexts(DefaultSpoilerTexts(Language::English), InputText(data, size));
  return 0;
}
