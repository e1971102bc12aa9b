// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>

namespace orrerix {

// Light in three linear channels; 1 is a fully lit channel before the exposure of a canvas, and
// more than 1 is allowed.
struct Rgb {
  double R = 0;
  double G = 0;
  double B = 0;
};

inline Rgb operator+(Rgb a, Rgb b) {
  return {a.R + b.R, a.G + b.G, a.B + b.B};
}
inline Rgb operator*(Rgb a, Rgb b) {
  return {a.R * b.R, a.G * b.G, a.B * b.B};
}
inline Rgb operator*(Rgb a, double k) {
  return {a.R * k, a.G * k, a.B * k};
}
inline Rgb Mix(Rgb a, Rgb b, double share) {
  return a * (1 - share) + b * share;
}

// The linear light of a colour as one picks it on the screen, 0xRRGGBB.
inline Rgb FromScreen(std::uint32_t hex) {
  const auto channel = [hex](int shift) {
    return std::pow(static_cast<double>((hex >> shift) & 0xFFU) / 255.0, 2.2);
  };
  return {channel(16), channel(8), channel(0)};
}

// 0 below `low`, 1 above `high`, a smooth step between.
inline double Smooth(double low, double high, double value) {
  const double t = std::fmin(1.0, std::fmax(0.0, (value - low) / (high - low)));
  return t * t * (3 - 2 * t);
}

}  // namespace orrerix
