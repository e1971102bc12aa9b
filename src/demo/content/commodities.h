// SPDX-License-Identifier: MIT
// The goods that the demo game trades in.
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

// These groups decide what a place makes or wants, so that prices make sense together.
enum class GoodsGroup { Raw, Metal, Food, Fuel, Machine, Tech, Luxury, Medical, Illicit, Waste };

struct Commodity {
  std::string Nickname;
  std::string Name;
  int Price = 0;
  int Volume = 1;
  int Decay = 0;  // units lost per second
  GoodsGroup Group = GoodsGroup::Raw;
  std::string About;
};

const std::vector<Commodity>& Commodities();

}  // namespace orrerix::demo
