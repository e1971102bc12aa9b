// SPDX-License-Identifier: MIT
#include "noise.h"

#include <cmath>
#include <utility>

namespace orrerix {

std::uint64_t SplitMix64::Next() {
  state_ += 0x9E3779B97F4A7C15ULL;
  std::uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31);
}

double SplitMix64::Uniform() {
  return static_cast<double>(Next() >> 11) * 0x1.0p-53;
}

double SplitMix64::Range(double low, double high) {
  return low + (high - low) * Uniform();
}

int SplitMix64::Below(int count) {
  return static_cast<int>(Uniform() * count);
}

double SplitMix64::Bell() {
  double sum = 0;
  for (int i = 0; i < 6; ++i) sum += Uniform();
  return (sum - 3) * std::sqrt(2.0);
}

namespace {

double Fade(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

double Blend(double a, double b, double t) {
  return a + (b - a) * t;
}

// The dot product of the offset with one of the twelve edge directions of a cube.
double Slope(int corner, double x, double y, double z) {
  const int h = corner & 15;
  const double u = h < 8 ? x : y;
  const double v = h < 4 ? y : (h == 12 || h == 14 ? x : z);
  return ((h & 1) == 0 ? u : -u) + ((h & 2) == 0 ? v : -v);
}

int Wrapped(int index, int period) {
  if (period <= 0) return index;
  const int rest = index % period;
  return rest < 0 ? rest + period : rest;
}

}  // namespace

Noise::Noise(std::uint64_t seed, int period) : period_(period) {
  SplitMix64 dice(seed);
  for (int i = 0; i < 256; ++i) table_[i] = static_cast<std::uint8_t>(i);
  for (int i = 255; i > 0; --i) std::swap(table_[i], table_[dice.Below(i + 1)]);
  for (int i = 0; i < 256; ++i) table_[256 + i] = table_[i];
}

int Noise::Corner(int x, int y, int z, int period) const {
  const int a = table_[Wrapped(x, period) & 255];
  const int b = table_[a + (Wrapped(y, period) & 255)];
  return table_[b + (z & 255)];
}

double Noise::At(Point3 point, int period) const {
  const double fx = std::floor(point.X);
  const double fy = std::floor(point.Y);
  const double fz = std::floor(point.Z);
  const int ix = static_cast<int>(fx);
  const int iy = static_cast<int>(fy);
  const int iz = static_cast<int>(fz);
  const double x = point.X - fx;
  const double y = point.Y - fy;
  const double z = point.Z - fz;
  const auto slope = [&](int dx, int dy, int dz) {
    return Slope(Corner(ix + dx, iy + dy, iz + dz, period), x - dx, y - dy, z - dz);
  };
  const double u = Fade(x);
  const double v = Fade(y);
  const auto layer = [&](int dz) {
    return Blend(Blend(slope(0, 0, dz), slope(1, 0, dz), u),
                 Blend(slope(0, 1, dz), slope(1, 1, dz), u), v);
  };
  return Blend(layer(0), layer(1), Fade(z));
}

double Noise::Fbm(Point3 point, int octaves) const {
  double sum = 0;
  double strength = 0.5;
  int period = period_;
  for (int i = 0; i < octaves; ++i) {
    sum += strength * At(point, period);
    // Between octaves a step in Z, so that their lattice points do not stand above each other.
    point = point * 2 + Point3{0, 0, 17.31};
    period *= 2;
    strength *= 0.5;
  }
  return sum * 1.6;
}

double Noise::Ridged(Point3 point, int octaves) const {
  double sum = 0;
  double strength = 0.5;
  double above = 1;
  int period = period_;
  for (int i = 0; i < octaves; ++i) {
    const double fold = 1 - std::fabs(At(point, period));
    const double crest = fold * fold * above;
    sum += strength * crest;
    above = std::fmin(1.0, crest * 1.6);
    point = point * 2 + Point3{0, 0, 9.77};
    period *= 2;
    strength *= 0.5;
  }
  return sum;
}

Point3 Noise::Displaced(Point3 point, int octaves, double reach) const {
  const double dx = Fbm(point + Point3{0, 0, 31.7}, octaves);
  const double dy = Fbm(point + Point3{0, 0, 71.3}, octaves);
  return point + Point3{dx, dy, 0} * reach;
}

double Noise::Warped(Point3 point, int octaves, double reach) const {
  return Fbm(Displaced(point, 3, reach), octaves);
}

}  // namespace orrerix
