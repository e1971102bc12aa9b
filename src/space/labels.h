// SPDX-License-Identifier: MIT
// Places for names so that none covers another.
#pragma once

#include <optional>
#include <vector>

namespace orrerix {

// Any unit, the same for all.
struct LabelBox {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;

  double Right() const { return Left + Width; }
  double Bottom() const { return Top + Height; }
  bool operator==(const LabelBox&) const = default;
};

// Whether two boxes have a point in common; edges that touch do not count.
bool Overlap(const LabelBox& a, const LabelBox& b);

// Where the box of a label may stand.
enum class LabelSpots {
  Beside,  // right, left, below, above of the anchor, and at its corners
  Over,    // on the anchor, else above or below it in steps
  Around   // on the anchor, else ever further around it
};

struct LabelWish {
  double X = 0;  // the anchor
  double Y = 0;
  double Gap = 0;  // from the anchor to a box beside it
  double Width = 0;
  double Height = 0;
  LabelSpots Spots = LabelSpots::Beside;
};

// A box for each wish, in their order: those that come first choose first. Nothing for a wish all
// of whose spots leave the area, or touch an obstacle or another box.
std::vector<std::optional<LabelBox>> PlaceLabels(const std::vector<LabelWish>& wishes,
                                                 const LabelBox& area,
                                                 std::vector<LabelBox> obstacles);

}  // namespace orrerix
