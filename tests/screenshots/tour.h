// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "album.h"
#include "forms/program_run.h"

namespace orrerix {

// Shows every window of a run that has not been started yet, as a player would come to see it, and
// takes pictures on the way. One function a window; a new window gets a new one in `Go`.
class Tour {
 public:
  Tour(ProgramRun& run, ErrorLog& log, PictureStore& pictures, Album& album)
      : run_(run), log_(log), pictures_(pictures), album_(album) {}

  // False if a window did not come; standard error says which.
  bool Go();

 private:
  void TakeLoading();
  void TakeImport();
  void TakeSpoiler();
  void TakeMap();
  void TakeOptions();
  void TakeZoomed();
  void TakeHover();
  void TakeSearch();
  void TakeStation();
  void TakeNarrow();
  void TakeSummary();
  void TakeTools();
  void TakeMapPages(QWidget& window);
  void TakeAtlas(QWidget& window);
  void TakeRelations(QWidget& window);
  static QWidget& OpenPage(QWidget& window, TextId name);
  void TakeTravel();
  void TakeUpdate();
  void TakeErrorLog();
  void TakeFailure();

  MapController& Controller() { return run_.Main()->Controller(); }
  const MapDrawing& Drawing() { return run_.Main()->Map().Drawing(); }
  void Wait(const char* what, const std::function<bool()>& isSo);
  void TakeMain(const QString& name);
  void ZoomInto(int cells);
  void ZoomOut();
  void ClickPanel(ControlId id, int index);
  StationInfo* OpenRichStation();

  ProgramRun& run_;
  ErrorLog& log_;
  PictureStore& pictures_;
  Album& album_;
};

}  // namespace orrerix
