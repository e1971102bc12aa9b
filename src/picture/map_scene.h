// SPDX-License-Identifier: MIT
// The map as a graphics scene.
#pragma once

#include <QGraphicsScene>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "map/redraw.h"
#include "picture/control_items.h"
#include "picture/control_layer.h"
#include "picture/picture_store.h"

namespace orrerix {

// What stands in front of all that a drawing has, back to front.
enum class FrontLayer { Box, CellCursor, RubberBand };
inline constexpr std::size_t kFrontLayers = 3;

// Where an item of someone else's stands among the controls of the drawing.
enum class Stratum { BelowLines, BelowPanel };

// A control that the mouse points at.
struct ControlHit {
  const Control* Shown = nullptr;  // null on the bare frame
  bool OnPanel = false;            // it is the panel, or a part of it
};

// The map frame of a drawing list, in logical pixels from its top left corner. Views, printer and
// picture files render it.
class MapScene : public QGraphicsScene {
 public:
  explicit MapScene(PictureStore& pictures, QObject* parent = nullptr);
  ~MapScene() override;

  // Shows a new list in the place of the one before. What a layer begins with as before is not
  // painted again. What stands in front stays.
  void Show(MapDrawing drawing);

  // Fills one of the layers in front, in the place of what it held.
  void ShowInFront(FrontLayer layer, ControlList controls);

  // An element of a control array of the drawing; null if there is none.
  const Control* Find(ControlId id, int index) const;

  // Called when a box has been shown, moved or hidden.
  std::function<void()> OnBoxChanged;

  // What is shown in front of the map in a layer.
  const ControlList& InFront(FrontLayer layer) const {
    return front_[static_cast<std::size_t>(layer)].Controls;
  }

  // Shows a control of the drawing in another size or place; it is known by identity and index. One
  // that the drawing does not have changes nothing.
  void Replace(const Control& control);

  const MapDrawing& Drawing() const { return drawing_; }

  // Puts an item of the scene that belongs to no control into a stratum of the drawing; to be
  // called after each Show. Its shape must be empty, so that nothing points at it.
  void Put(ControlItem& item, Stratum stratum);

  // Hides or shows the names of systems, until the next Show.
  void ShowSystemNames(bool shown);

  // The sky, the pictures and names of systems and the jump connections, with what was put below
  // lines, are still: most redraws leave them as they are. The number changes whenever they look
  // different by more than a finer picture. Zero if none are still.
  std::uint64_t StillVersion() const { return HasStill() ? still_.Changes.Version() : 0; }

  // Where they look different since a version; null if that may be anywhere.
  std::optional<QRegion> StillChangesSince(std::uint64_t version) const {
    return still_.Changes.Since(version, StillPart());
  }

  // Another number whenever pictures may look finer, and where still ones do since a version. All
  // others that do are painted again.
  std::uint64_t PicturesVersion() const { return pictures_.Version(); }
  QRegion FinerSince(std::uint64_t picturesVersion);

  // Paints the still items that are seen in a part of the scene, in front of the background. The
  // painter is in the scene's coordinates; `window` is where they will be seen.
  void DrawStill(QPainter& painter, const QRegion& part, QWidget* window);

  // The part of the scene in which still items are seen.
  QRectF StillPart() const { return OpenPart(drawing_); }

  // While they are kept, a view paints all other items only.
  void KeepStill(bool areKept) { still_.AreKept = areKept; }

  // The topmost control at a point that is not a line.
  ControlHit HitAt(QPointF point) const;
  const Control* ControlAt(QPointF point) const { return HitAt(point).Shown; }

 protected:
  // Leaves out what the drawing hides anyway.
  void drawBackground(QPainter* painter, const QRectF& exposed) override;

 private:
  static QRectF OpenPart(const MapDrawing& drawing);
  static ItemView ViewOf(const MapDrawing& drawing) {
    return {OpenPart(drawing), drawing.PrintMode};
  }
  void ShowLayers(const MapDrawing& next);
  void StackLayers();
  bool HasStill() const { return !layers_.empty() && layers_.front()->IsStill(); }
  void SetStill();
  std::vector<ControlItem*> StillItemsIn(const QRegion& part, QPainter& painter);
  void SpareLetters();
  QRegion HiddenPart() const;
  void MakeFrontItems(FrontLayer layer);

  struct Front {
    ControlList Controls;
    std::vector<ControlItem*> Items;
  };

  PictureStore& pictures_;
  MapDrawing drawing_;
  std::vector<std::unique_ptr<ControlLayer>> layers_;  // of the drawing's controls, back to front
  std::array<Front, kFrontLayers> front_;
  std::vector<QRectF> letters_;  // that lines spare
  StillItems still_;
};

}  // namespace orrerix
