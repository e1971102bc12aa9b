// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "palette.h"

namespace orrerix {

// The cell of each system picture, in the order of the pictures' numbers.
constexpr int SystemPictures = 47;
constexpr std::array<std::array<int, 2>, SystemPictures> SystemCells{
    {{8, 6},  {8, 4},   {10, 4}, {9, 8},   {12, 13}, {8, 7},   {2, 15},  {3, 7},
     {4, 8},  {4, 14},  {6, 14}, {14, 16}, {13, 12}, {11, 12}, {10, 12}, {3, 13},
     {8, 10}, {8, 14},  {9, 2},  {11, 3},  {11, 13}, {10, 9},  {10, 11}, {7, 11},
     {8, 9},  {12, 14}, {7, 8},  {3, 11},  {9, 15},  {11, 16}, {6, 16},  {12, 8},
     {13, 8}, {12, 6},  {3, 9},  {5, 3},   {9, 11},  {16, 11}, {16, 2},  {6, 11},
     {1, 12}, {8, 5},   {9, 6},  {7, 6},   {6, 12},  {5, 12},  {16, 14}}};

inline GridPoint MiddleOfSystem(int picture) {
  const auto& cell = SystemCells.at(picture);
  return {cell[0] + 0.5, cell[1] + 0.5};
}

}  // namespace orrerix
