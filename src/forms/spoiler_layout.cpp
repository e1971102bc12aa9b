// SPDX-License-Identifier: MIT
#include "forms/spoiler_layout.h"

#include "map/numeric.h"

namespace orrerix {
namespace {

constexpr int kSide = 240;  // left of the buttons and of the text
constexpr int kButtonHeight = 735;
constexpr int kBelowButtons = 400;
constexpr int kCheckWidth = 7000;
constexpr int kCheckHeight = 375;
constexpr int kHeadHeight = 720;
constexpr int kTextTop = 840;
constexpr int kGap = 50;

}  // namespace

SpoilerPlaces LayOutSpoiler(int width, int height) {
  SpoilerPlaces places;
  const int buttonWidth = MAXI(0, (width - 5 * kSide) / 2);
  const int buttonTop = MAXI(0, height - kButtonHeight - kSide - kBelowButtons);
  places.Ok = {kSide, buttonTop, buttonWidth, kButtonHeight};
  places.Cancel = {MAXI(0, width / 2), buttonTop, buttonWidth, kButtonHeight};
  places.HeadLine = {0, 0, MAXI(0, width), kHeadHeight};
  places.Check1 = {kSide, MAXI(0, buttonTop - kCheckHeight - kGap), kCheckWidth, kCheckHeight};
  places.Text = {kSide, kTextTop, MAXI(0, width - 3 * kSide),
                 MAXI(0, places.Check1.Top - kTextTop - kGap)};
  return places;
}

}  // namespace orrerix
