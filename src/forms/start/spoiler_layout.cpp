// SPDX-License-Identifier: MIT
#include "forms/start/spoiler_layout.h"

#include <algorithm>

#include "map/grid/numeric.h"

namespace orrerix {
namespace {

constexpr int kSide = 240;  // left of the buttons and of the text
constexpr int kButtonHeight = 735;
constexpr int kBelowButtons = 400;
constexpr int kCheckWidth = 7000;
constexpr int kCheckHeight = 375;
constexpr int kHeadHeight = 720;
constexpr int kTextTop = 840;
constexpr int kSpoilerLayoutGap = 50;

}  // namespace

SpoilerPlaces LayOutSpoiler(int width, int height) {
  SpoilerPlaces places;
  const int buttonWidth = std::max(0, (width - 5 * kSide) / 2);
  const int buttonTop = std::max(0, height - kButtonHeight - kSide - kBelowButtons);
  places.Ok = {kSide, buttonTop, buttonWidth, kButtonHeight};
  places.Cancel = {std::max(0, width / 2), buttonTop, buttonWidth, kButtonHeight};
  places.HeadLine = {0, 0, std::max(0, width), kHeadHeight};
  places.WarningOff = {kSide, std::max(0, buttonTop - kCheckHeight - kSpoilerLayoutGap),
                       kCheckWidth, kCheckHeight};
  places.Text = {kSide, kTextTop, std::max(0, width - 3 * kSide),
                 std::max(0, places.WarningOff.Top - kTextTop - kSpoilerLayoutGap)};
  return places;
}

}  // namespace orrerix
