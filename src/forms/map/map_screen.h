// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <memory>
#include <optional>
#include <string>

#include "forms/map/hover_overlay.h"
#include "forms/map/sysmap_frame.h"
#include "map/redraw.h"
#include "picture/qt_text_measure.h"
#include "shell/language.h"
#include "shell/settings.h"

namespace orrerix {

// Milliseconds that a movement takes where the desktop wants movements; 0 where it wants none, or
// where nobody sees them.
int DesktopGlideTime(const QWidget& widget);

// The map on the main form, with all that it remembers between two redraws.
class MapScreen {
 public:
  // Its widgets belong to `form`.
  MapScreen(PictureStore& pictures, Settings& settings, TextSource& texts, QWidget* form);
  ~MapScreen();
  MapScreen(const MapScreen&) = delete;
  MapScreen& operator=(const MapScreen&) = delete;

  // A file in the place of the painted universe.
  void ReplaceStarMap(std::string file) { starMap_ = std::move(file); }

  // Takes the captions over from the language in use.
  void ReadCaptions();

  // Shows these news below the program's own line, from the next redraw on. `ownLink` is that
  // line's.
  void SetNews(std::string ownLink, std::vector<NewsItem> news);

  // Whether there are news besides the program's own line.
  bool HasNews() const { return !news_.empty(); }

  // Reads the systems' names; once, however often it is called.
  void InitDataUsage(Universe& universe);

  // The next InitDataUsage reads them again: another universe is shown.
  void ForgetNames() { namesRead_ = false; }

  // One redraw of everything, on a form of this outer size (twips). Shows the frame.
  void Redraw(Universe& universe, int formWidth, int formHeight);
  void Hide() { frame_->hide(); }

  MapState& State() { return state_; }
  SysmapFrame& Frame() { return *frame_; }
  MapScene& Scene() { return scene_; }
  const MapDrawing& Drawing() const { return scene_.Drawing(); }

  // The switches as the last redraw has read them: what the panel shows.
  const MapOptions& Options() const { return options_; }

 private:
  MapOptions ReadOptions();
  void ReadAhead();
  void Sharpen();

  PictureStore& pictures_;
  Settings& settings_;
  TextSource& texts_;
  QtTextMeasure measure_;
  PanelContent panel_;
  std::string ownLink_;
  std::vector<NewsItem> news_;
  MapState state_;
  MapOptions options_;
  bool namesRead_ = false;
  std::optional<std::string> starMap_;
  MapScene scene_;
  SysmapFrame* frame_;
  std::unique_ptr<HoverOverlay> overlay_;  // on the frame, but gone before the scene
  QTimer* sharpening_;
};

}  // namespace orrerix
