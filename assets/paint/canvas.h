// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <numbers>
#include <vector>

#include "rgb.h"

namespace orrerix {

constexpr double FullTurn = 2 * std::numbers::pi;  // radians

// A place on a picture in its natural pixels, whatever the scale it is painted at.
struct Spot {
  double X = 0;
  double Y = 0;
};

// A picture that gathers light. Painters give places and lengths in natural pixels; a canvas of
// scale 2 holds the same composition in twice as many pixels each way.
class Canvas {
 public:
  Canvas(int naturalWidth, int naturalHeight, int scale);

  int Width() const { return width_; }    // stored pixels
  int Height() const { return height_; }  // stored pixels
  int Scale() const { return scale_; }
  double NaturalWidth() const { return static_cast<double>(width_) / scale_; }
  double NaturalHeight() const { return static_cast<double>(height_) / scale_; }

  // x and y count stored pixels and must lie on the canvas.
  Rgb& At(int x, int y) { return light_[static_cast<std::size_t>(y) * width_ + x]; }
  // The middle of a stored pixel in natural pixels.
  Spot Middle(int x, int y) const { return {(x + 0.5) / scale_, (y + 0.5) / scale_}; }

  // Sets every pixel to what `light` answers for its middle.
  template <typename Light>
  void Fill(Light light) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) At(x, y) = light(Middle(x, y));
    }
  }

  // The gathered light as a picture. The exposure saturates softly, and a fine fixed grain hides
  // the steps of dark gradients.
  QImage Expose() const;

 private:
  int width_;
  int height_;
  int scale_;
  std::vector<Rgb> light_;
};

}  // namespace orrerix
