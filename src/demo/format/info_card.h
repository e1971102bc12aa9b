// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrerix::demo {

// An info card in the game's markup: a headline (left out if empty), then the paragraphs.
std::string InfoCard(std::string_view headline, const std::vector<std::string>& paragraphs);

// A card of "LABEL: value" lines, one line a paragraph, under a headline.
struct Fact {
  std::string Label;
  std::string Value;
};
std::string FactCard(std::string_view headline, const std::vector<Fact>& facts);

}  // namespace orrerix::demo
