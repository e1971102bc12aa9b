// SPDX-License-Identifier: MIT
#include "db/rows/unique_numbers.h"

#include <utility>

#include <sqlite3.h>

namespace orrerix {
namespace {

constexpr std::uint32_t kLargest = 2147483647;
constexpr std::size_t kFewestPlaces = 64;

}  // namespace

std::uint32_t UniqueNumbers::DrawAtRandom() {
  std::uint32_t number = 0;
  sqlite3_randomness(sizeof number, &number);
  return number;
}

std::int64_t UniqueNumbers::Draw() {
  std::uint32_t number = source_() % kLargest + 1;
  while (!Insert(number)) number = source_() % kLargest + 1;
  return number;
}

bool UniqueNumbers::Take(std::int64_t number) {
  if (number < 1 || number > kLargest) return true;  // never drawn
  return Insert(static_cast<std::uint32_t>(number));
}

// Random numbers are their own hash.
bool UniqueNumbers::Insert(std::uint32_t number) {
  if (2 * count_ >= places_.size()) Grow();
  const std::size_t mask = places_.size() - 1;
  std::size_t place = number & mask;
  while (places_[place] != 0 && places_[place] != number) place = (place + 1) & mask;
  if (places_[place] == number) return false;
  places_[place] = number;
  ++count_;
  return true;
}

void UniqueNumbers::Grow() {
  const std::size_t size = places_.empty() ? kFewestPlaces : 4 * places_.size();
  const std::vector<std::uint32_t> before =
      std::exchange(places_, std::vector<std::uint32_t>(size, 0));
  count_ = 0;
  for (const std::uint32_t number : before) {
    if (number != 0) Insert(number);
  }
}

}  // namespace orrerix
