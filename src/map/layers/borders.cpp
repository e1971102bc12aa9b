// SPDX-License-Identifier: MIT
#include "map/layers/borders.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "map/grid/numeric.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

enum Piece { TopLeft, Top, TopRight, LeftEdge, RightEdge, BottomLeft, Bottom, BottomRight };

// Natural sizes of the pieces; edges are stretched along their length.
TwipRect NaturalSize(BorderSet set, int piece) {
  const bool large = set == BorderSet::Map || set == BorderSet::InfoBox;
  const TwipRect corner = large ? TwipRect{0, 0, 315, 315} : TwipRect{0, 0, 225, 240};
  switch (piece) {
    case Top:
    case Bottom:
      return {0, 0, 960, kBorderThickness};
    case LeftEdge:
    case RightEdge:
      return {0, 0, kBorderThickness, 960};
    default:
      return corner;
  }
}

}  // namespace

ControlList BorderPieces(BorderSet set, int left, int top, int right, int bottom) {
  std::array<TwipRect, kBorderPieces> boxes;
  for (int k = 0; k < kBorderPieces; ++k) boxes[static_cast<std::size_t>(k)] = NaturalSize(set, k);
  const auto moveTo = [](TwipRect& box, double x, double y) { box.Left = x, box.Top = y; };
  moveTo(boxes[TopLeft], left, top);
  moveTo(boxes[TopRight], right - boxes[TopRight].Width, top);
  moveTo(boxes[BottomLeft], left, bottom - boxes[BottomLeft].Height);
  moveTo(boxes[BottomRight], right - boxes[BottomRight].Width, bottom - boxes[BottomRight].Height);

  moveTo(boxes[Top], left + boxes[TopLeft].Width, top);
  boxes[Top].Width = NotBelowZero(boxes[TopRight].Left - boxes[Top].Left);
  moveTo(boxes[LeftEdge], left, top + boxes[TopLeft].Height);
  boxes[LeftEdge].Height = NotBelowZero(boxes[BottomLeft].Top - top - boxes[TopLeft].Height);
  moveTo(boxes[RightEdge], right - boxes[RightEdge].Width, top + boxes[TopRight].Height);
  boxes[RightEdge].Height = NotBelowZero(boxes[BottomRight].Top - boxes[RightEdge].Top);
  moveTo(boxes[Bottom], left + boxes[BottomLeft].Width, bottom - boxes[Bottom].Height);
  boxes[Bottom].Width = NotBelowZero(boxes[BottomRight].Left - boxes[Bottom].Left);

  ControlList pieces;
  const int number = static_cast<int>(set);
  for (int k = 0; k < kBorderPieces; ++k) {
    pieces.push_back(MakePicture(ControlId::Border, kBorderPieces * number + k,
                                 boxes[static_cast<std::size_t>(k)],
                                 fmt::format("rahmen/set{}_{}.png", number, k)));
  }
  return pieces;
}

ControlList LayOutBorder(ErrorLog& log, BorderSet set, double right, double bottom) {
  ControlList pieces;
  Routine routine(log, "OrrerixMain.SetRahmen", "While calcing a border");
  routine.Run(
      [&] { pieces = BorderPieces(set, 0, 0, routine.Long(right, 0), routine.Long(bottom, 0)); });
  return pieces;
}

}  // namespace orrerix
