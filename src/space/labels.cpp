// SPDX-License-Identifier: MIT
#include "space/labels.h"

#include <algorithm>

namespace orrerix {
namespace {

constexpr int kStepsOver = 3;
constexpr int kRingsAround = 6;
constexpr double kStepAcross = 0.25;  // of a label's width

LabelBox Centred(const LabelWish& wish, double right, double down) {
  return {wish.X - wish.Width / 2 + right, wish.Y - wish.Height / 2 + down, wish.Width,
          wish.Height};
}

std::vector<LabelBox> SpotsBeside(const LabelWish& wish) {
  const double right = wish.Gap + wish.Width / 2;
  const double down = wish.Gap + wish.Height / 2;
  // At a corner the box is as near as the anchor's disc allows.
  const double corner = 0.7 * wish.Gap;
  const double cornerRight = corner + wish.Width / 2;
  const double cornerDown = corner + wish.Height / 2;
  return {Centred(wish, right, 0),
          Centred(wish, -right, 0),
          Centred(wish, 0, down),
          Centred(wish, 0, -down),
          Centred(wish, cornerRight, cornerDown),
          Centred(wish, cornerRight, -cornerDown),
          Centred(wish, -cornerRight, cornerDown),
          Centred(wish, -cornerRight, -cornerDown)};
}

std::vector<LabelBox> SpotsOver(const LabelWish& wish) {
  std::vector<LabelBox> spots{Centred(wish, 0, 0)};
  for (int step = 1; step <= kStepsOver; ++step) {
    spots.push_back(Centred(wish, 0, step * wish.Height));
    spots.push_back(Centred(wish, 0, -step * wish.Height));
  }
  return spots;
}

// Up and down is near, sideways far: labels are wide.
std::vector<LabelBox> SpotsAround(const LabelWish& wish) {
  std::vector<LabelBox> spots{Centred(wish, 0, 0)};
  for (int ring = 1; ring <= kRingsAround; ++ring) {
    for (int down = 0; down <= ring; ++down) {
      const double across = (ring - down) * kStepAcross * wish.Width;
      const double height = down * wish.Height / 2;
      for (const double x : {across, -across}) {
        for (const double y : {height, -height}) spots.push_back(Centred(wish, x, y));
      }
    }
  }
  return spots;
}

std::vector<LabelBox> SpotsOf(const LabelWish& wish) {
  switch (wish.Spots) {
    case LabelSpots::Beside:
      return SpotsBeside(wish);
    case LabelSpots::Over:
      return SpotsOver(wish);
    case LabelSpots::Around:
      return SpotsAround(wish);
  }
  return {};
}

bool Holds(const LabelBox& area, const LabelBox& box) {
  return box.Left >= area.Left && box.Top >= area.Top && box.Right() <= area.Right() &&
         box.Bottom() <= area.Bottom();
}

}  // namespace

bool Overlap(const LabelBox& a, const LabelBox& b) {
  return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

std::vector<std::optional<LabelBox>> PlaceLabels(const std::vector<LabelWish>& wishes,
                                                 const LabelBox& area,
                                                 std::vector<LabelBox> obstacles) {
  std::vector<std::optional<LabelBox>> places;
  for (const LabelWish& wish : wishes) {
    const std::vector<LabelBox> spots = SpotsOf(wish);
    const auto free = std::find_if(spots.begin(), spots.end(), [&](const LabelBox& spot) {
      return Holds(area, spot) &&
             std::none_of(obstacles.begin(), obstacles.end(),
                          [&](const LabelBox& other) { return Overlap(spot, other); });
    });
    places.push_back(free == spots.end() ? std::nullopt : std::optional(*free));
    if (free != spots.end()) obstacles.push_back(*free);
  }
  return places;
}

}  // namespace orrerix
