// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointer>
#include <QRegion>
#include <QTransform>
#include <QWidget>
#include <cstdint>

#include "picture/map_scene.h"

namespace orrerix {

// What a picture of the still items depends on besides the scene's content.
struct StillLook {
  QPointer<QGraphicsScene> Scene;
  QTransform ToDevice;  // from the scene to the picture's pixels
  QSize Size;
  double DevicePixelRatio = 1;
  bool operator==(const StillLook&) const = default;
};

// A picture of what is still in a scene, in the pixels of the window that shows it. What is due to
// be painted is painted when it is asked for, in one go or in several.
class StillPicture {
 public:
  const StillLook& Look() const { return look_; }
  const QImage& Image() const { return image_; }

  // The pixels in which still items are seen.
  QRect Part() const { return part_; }

  // Starts a picture of which all is missing.
  void Begin(MapScene& map, const StillLook& look);

  // Hands the picture over. Begin makes another one.
  QImage Release();

  // Whether the scene has not changed since it was followed.
  bool IsUpToDate(MapScene& map) const { return version_ == map.StillVersion(); }

  // From now on the pixels are missing that have changed in the scene.
  void Follow(MapScene& map);

  // From now on the pixels are coarse that finer pictures could be seen in.
  void FollowPictures(MapScene& map);

  // Pixels that do not show the scene.
  QRegion Missing() const { return missing_; }

  // All that is due.
  QRegion Due() const { return missing_ + coarse_; }

  // The first pixels that are due, row by row: about as many as `area`, and missing ones if there
  // are any.
  QRegion NextDue(qint64 area) const;

  // Paints some pixels. `window` is where they will be seen.
  void Paint(MapScene& map, const QRegion& pixels, QWidget* window);

 private:
  void PaintWithin(MapScene& map, const QRegion& pixels, QWidget* window);
  QRegion PixelsOf(const QRegion& places) const;

  QImage image_;
  StillLook look_;
  QRect part_;
  QRegion missing_;
  QRegion coarse_;
  std::uint64_t version_ = 0;   // of the still items
  std::uint64_t pictures_ = 0;  // of the pictures in their sizes
};

}  // namespace orrerix
