// SPDX-License-Identifier: MIT
#include "space/sectors.h"

#include <cmath>

#include <fmt/format.h>

namespace orrerix {
namespace {

constexpr double kColumnShift = 0.35;
constexpr double kRowShift = 0.5;

}  // namespace

double SectorLeft(int column) {
  return (column + kColumnShift) / kSectors;
}

double SectorTop(int row) {
  return (row + kRowShift) / kSectors;
}

std::string ColumnName(int column) {
  return {static_cast<char>('A' + column)};
}

std::string RowName(int row) {
  return {static_cast<char>('1' + row)};
}

std::string SectorAt(CellFraction point) {
  const double column = std::floor(kSectors * point.X - kColumnShift);
  const double row = std::floor(kSectors * point.Y - kRowShift);
  const auto isInside = [](double sector) { return sector >= 0 && sector < kSectors; };
  if (!isInside(column) || !isInside(row)) return {};
  return ColumnName(static_cast<int>(column)) + RowName(static_cast<int>(row));
}

ScaleBar ScaleBarFor(double unitsAcross, double longest) {
  const double most = unitsAcross * longest;
  if (!(most > 0) || !std::isfinite(most)) return {};
  const double power = std::pow(10, std::floor(std::log10(most)));
  double units = power;
  for (const double factor : {2.0, 5.0}) {
    if (factor * power <= most) units = factor * power;
  }
  return {units, units / unitsAcross,
          units >= 1000 ? fmt::format("{} km", units / 1000) : fmt::format("{} m", units)};
}

}  // namespace orrerix
