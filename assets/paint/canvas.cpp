// SPDX-License-Identifier: MIT
#include "canvas.h"

#include <algorithm>

#include "noise.h"

namespace orrerix {

namespace {

int Screen(double light, double grain) {
  const double soft = 1 - std::exp(-std::max(0.0, light));
  return std::clamp(static_cast<int>(std::pow(soft, 1 / 2.2) * 255 + grain), 0, 255);
}

}  // namespace

Canvas::Canvas(int naturalWidth, int naturalHeight, int scale)
    : width_(naturalWidth * scale),
      height_(naturalHeight * scale),
      scale_(scale),
      light_(static_cast<std::size_t>(width_) * height_) {}

QImage Canvas::Expose() const {
  QImage image(width_, height_, QImage::Format_RGB32);
  SplitMix64 dice(0x6772616964ULL);
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const Rgb& light = light_[static_cast<std::size_t>(y) * width_ + x];
      const double grain = dice.Uniform();
      image.setPixel(x, y,
                     qRgb(Screen(light.R, grain), Screen(light.G, grain), Screen(light.B, grain)));
    }
  }
  return image;
}

}  // namespace orrerix
