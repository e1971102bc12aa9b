// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

namespace orrerix {

// The SplitMix64 generator: the same numbers on every machine and with every library.
class SplitMix64 {
 public:
  explicit SplitMix64(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next();
  double Uniform();  // 0 up to, but without, 1
  double Range(double low, double high);
  int Below(int count);  // 0 to count - 1
  double Bell();         // about normal, mean 0, deviation 1

 private:
  std::uint64_t state_;
};

// A point of noise space.
struct Point3 {
  double X = 0;
  double Y = 0;
  double Z = 0;
};

inline Point3 operator+(Point3 a, Point3 b) {
  return {a.X + b.X, a.Y + b.Y, a.Z + b.Z};
}
inline Point3 operator*(Point3 a, double k) {
  return {a.X * k, a.Y * k, a.Z * k};
}

// Gradient noise, about -1 to 1 and 0 at every lattice point.
class Noise {
 public:
  // With a period above 0 the noise repeats after that many lattice steps in X and in Y. The sums
  // below keep the period, since each octave doubles frequency and period alike.
  explicit Noise(std::uint64_t seed, int period = 0);

  double At(Point3 point) const { return At(point, period_); }

  // Sum of octaves, each of twice the frequency and half the strength; about -1 to 1.
  double Fbm(Point3 point, int octaves) const;

  // Sum of folded octaves: 1 on sharp crests, falling to 0 between them.
  double Ridged(Point3 point, int octaves) const;

  // Fbm at a point that has itself been displaced by Fbm, up to about `reach` lattice steps:
  // folds and swirls instead of round clouds.
  double Warped(Point3 point, int octaves, double reach) const;

  // The displacement that Warped uses.
  Point3 Displaced(Point3 point, int octaves, double reach) const;

 private:
  double At(Point3 point, int period) const;
  int Corner(int x, int y, int z, int period) const;

  int period_;
  std::array<std::uint8_t, 512> table_;
};

}  // namespace orrerix
