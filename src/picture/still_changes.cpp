// SPDX-License-Identifier: MIT
#include "picture/still_changes.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace orrerix {
namespace {

// With more places than that all is painted again.
constexpr std::size_t kMostPlaces = 8192;

// Places are widened by soft edges and by what rounding to a device's pixels may take.
constexpr double kEdge = 2;

// The region is made out of squares of this size, and lines are followed in such steps: the union
// of thousands of places would take longer than painting them.
constexpr int kSquare = 8;

class Squares {
 public:
  explicit Squares(const QRectF& within)
      : corner_(within.toAlignedRect().topLeft()),
        columns_(Count(within.toAlignedRect().width())),
        rows_(Count(within.toAlignedRect().height())),
        marks_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

  void Mark(const QRectF& place) {
    const int left = std::max(0, At(place.left() - corner_.x()));
    const int right = std::min(columns_ - 1, At(place.right() - corner_.x()));
    const int bottom = std::min(rows_ - 1, At(place.bottom() - corner_.y()));
    for (int row = std::max(0, At(place.top() - corner_.y())); row <= bottom; ++row) {
      for (int column = left; column <= right; ++column) marks_[Index(row, column)] = true;
    }
  }

  QRegion Region() const {
    std::vector<QRect> rects;
    for (int row = 0; row < rows_; ++row) {
      for (int column = 0; column < columns_; ++column) {
        if (!marks_[Index(row, column)]) continue;
        const int first = column;
        while (column + 1 < columns_ && marks_[Index(row, column + 1)]) ++column;
        rects.emplace_back(corner_.x() + first * kSquare, corner_.y() + row * kSquare,
                           (column - first + 1) * kSquare, kSquare);
      }
    }
    QRegion region;
    region.setRects(rects.data(), static_cast<int>(rects.size()));
    return region;
  }

 private:
  static int Count(int length) { return (length + kSquare - 1) / kSquare; }
  static int At(double distance) { return static_cast<int>(std::floor(distance / kSquare)); }
  std::size_t Index(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  QPoint corner_;
  int columns_;
  int rows_;
  std::vector<bool> marks_;
};

}  // namespace

void StillChanges::AddAll() {
  allChanged_ = Version() + 1;
  places_.clear();
}

void StillChanges::Add(const QRectF& place) {
  if (place.isEmpty()) return;
  if (places_.size() == kMostPlaces) return AddAll();
  places_.push_back(place.adjusted(-kEdge, -kEdge, kEdge, kEdge));
}

void StillChanges::AddLine(const QLineF& line, const QRectF& seen) {
  const double length = line.length();
  const int steps = std::max(1, static_cast<int>(std::ceil(length / kSquare)));
  for (int i = 0; i < steps; ++i) {
    const QPointF from = line.pointAt(double(i) / steps);
    const QPointF to = line.pointAt(double(i + 1) / steps);
    const QRectF place = QRectF(from, to).normalized().adjusted(-kEdge, -kEdge, kEdge, kEdge);
    if (place.intersects(seen)) Add(place);
  }
}

std::optional<QRegion> StillChanges::Since(std::uint64_t version, const QRectF& within) const {
  if (version < allChanged_ || version > Version()) return std::nullopt;
  if (version == Version()) return QRegion();
  Squares squares(within);
  const auto first = static_cast<std::size_t>(version - allChanged_);
  for (const QRectF& place : std::span(places_).subspan(first)) squares.Mark(place);
  return squares.Region();
}

}  // namespace orrerix
