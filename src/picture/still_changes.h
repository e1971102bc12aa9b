// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QRectF>
#include <QRegion>
#include <cstdint>
#include <optional>
#include <vector>

namespace orrerix {

// What has changed of a part of a scene, so that whoever keeps a picture of it paints no more than
// that again. All places are in the scene's coordinates.
class StillChanges {
 public:
  // Another number for each change; never zero.
  std::uint64_t Version() const { return allChanged_ + places_.size(); }

  // Everything may look different.
  void AddAll();

  // What is painted in this place may look different; an empty place changes nothing.
  void Add(const QRectF& place);

  // The same for a narrow line, of which only the part in `seen` matters.
  void AddLine(const QLineF& line, const QRectF& seen);

  // What has changed within a place since a version that Version returned. Null if all may have.
  std::optional<QRegion> Since(std::uint64_t version, const QRectF& within) const;

 private:
  std::uint64_t allChanged_ = 1;  // the version in which all changed; each place counts one more
  std::vector<QRectF> places_;
};

}  // namespace orrerix
