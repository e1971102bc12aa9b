// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSettings>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "forms/layers/layer_items.h"
#include "forms/layers/layer_labels.h"
#include "forms/layers/layer_view.h"
#include "forms/map/map_screen.h"
#include "forms/workbench/background_task.h"
#include "shell/text_id.h"

namespace orrerix {

// The layers on the map: reads what lies in the systems beside the event loop, paints what the
// player has chosen, and says what is below the resting pointer. The map's own drawing stays as it
// is.
class MapSpace : public QObject {
 public:
  // All of these outlive this. `settings` keeps the choice.
  MapSpace(MapScreen& screen, QSettings& settings, const LanguageChoice& language);
  ~MapSpace() override;

  // What lies in the systems; null until it has been read.
  const Space* Shown() const { return space_.get(); }
  const LayerChoice& Choice() const { return choice_; }
  void Choose(const LayerChoice& choice);

  // Reads a universe file, and its game folder for what the file lacks; that of before goes when
  // the new one is there.
  void Read(const std::filesystem::path& universe, const std::string& game);
  bool IsReading() const { return task_.IsRunning(); }

  // Another universe is going to be shown.
  void Forget();

  // To be called after each redraw of the map.
  void MapRedrawn();

  // The gate that a point of the map frame (pixels) leads through; null if no gate is there, or
  // the layer of the gates is off.
  const Gate* GateAt(QPointF point) const;

  // What is to be said about a point of the map frame, pixels.
  std::string TextAt(QPointF point) const;

  // The cell and the place in it of a point on the frame; nothing beside the cells that are shown.
  struct Point {
    MapCell Cell;
    CellFraction Place;
  };
  std::optional<Point> PointAt(QPointF point) const;

  // Called when another universe has been read.
  std::function<void()> OnRead;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Outcome {
    std::shared_ptr<const Space> Read;  // null where the file cannot be read
  };

  LayerView ViewOf(const MapDrawing& drawing) const;
  double Reach() const;
  void Show();

  MapScreen& screen_;
  QSettings& settings_;
  const LanguageChoice& language_;
  LayerChoice choice_;
  std::shared_ptr<const Space> space_;
  LayerView view_;
  std::vector<LayerLabel> names_;
  PaintedItem* areas_;  // both belong to the scene
  PaintedItem* labels_;
  BackgroundTask task_;
};

}  // namespace orrerix
