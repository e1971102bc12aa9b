// SPDX-License-Identifier: MIT
#include "db/values/like_pattern.h"

#include "support.h"

// The input's first line is a pattern, the rest a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix;
  const std::string_view input = InputText(data, size);
  const std::size_t end = input.find('\n');
  const auto pattern = LikePattern::Compile(input.substr(0, end));
  if (!pattern) return 0;
  pattern->Matches(input);
  if (end != std::string_view::npos) pattern->Matches(input.substr(end + 1));
  return 0;
}
