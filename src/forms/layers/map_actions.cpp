// SPDX-License-Identifier: MIT
#include "forms/layers/map_actions.h"

#include <QCursor>
#include <QFileDialog>

#include "forms/controls/captions.h"
#include "forms/save_map.h"
#include "map/grid/map_coords.h"
#include "space/nearest.h"

namespace orrerix {
namespace {

constexpr double kPlaceReach = 9;  // pixels around the pointer: half an icon and a little more
constexpr std::size_t kMostNames = 3;

}  // namespace

QPointF MapActions::Pointer() const {
  const SysmapFrame& frame = screen_.Frame();
  return frame.mapToScene(frame.viewport()->mapFromGlobal(QCursor::pos()));
}

std::string MapActions::CoordinatesAt(QPointF point) const {
  const auto at = space_.PointAt(point);
  if (!at) return {};
  const CellNames& names = screen_.State().Names;
  if (space_.Shown() == nullptr) return CoordsToMapCoords(log_, names, at->Cell, at->Place);
  const double reach = kPlaceReach / Pixels(screen_.Drawing().Cells.CellSize());
  const NamedPoint nearest = NearestPoint(*space_.Shown(), at->Cell, at->Place, reach);
  return CoordinatesText(nearest, CoordsToMapCoords(log_, names, at->Cell, nearest.Place));
}

Bookmark MapActions::BookmarkAt(QPointF point) const {
  const ZoomRectangle& view = screen_.State().Zoom.Current();
  const auto at = space_.PointAt(point);
  if (at && space_.Shown() != nullptr) {
    const double reach = kPlaceReach / Pixels(screen_.Drawing().Cells.CellSize());
    const NamedPoint nearest = NearestPoint(*space_.Shown(), at->Cell, at->Place, reach);
    const ZoomRectangle cell{at->Cell.X, at->Cell.Y, at->Cell.X, at->Cell.Y};
    if (!nearest.Nickname.empty() && view.Columns() == 1) {
      return {nearest.Name + " (" + screen_.State().Names.Of(at->Cell) + ")", "", nearest.Nickname,
              cell};
    }
  }
  return BookmarkOfView();
}

Bookmark MapActions::BookmarkOfView() const {
  const ZoomRectangle& view = screen_.State().Zoom.Current();
  return {NameOf(view), "", "", view};
}

// The first systems that a view shows.
std::string MapActions::NameOf(const ZoomRectangle& view) const {
  if (!view.IsZoomed()) return std::string(TextIn(choice_.Current, TextId::StarMap));
  std::string text;
  std::size_t count = 0;
  for (int y = view.Y1; y <= view.Y2; ++y) {
    for (int x = view.X1; x <= view.X2; ++x) {
      const std::string& name = screen_.State().Names.Of({x, y});
      if (name.empty()) continue;
      if (++count > kMostNames) return text + ", ...";
      text += (text.empty() ? "" : ", ") + name;
    }
  }
  return text.empty() ? std::string(TextIn(choice_.Current, TextId::StarMap)) : text;
}

QRect MapActions::ShownPart() const {
  const MapDrawing& drawing = screen_.Drawing();
  QRectF part(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) part.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) part.setBottom(panel.top());
  // No pixel that the map does not reach to its far side.
  return {0, 0, static_cast<int>(part.width()), static_cast<int>(part.height())};
}

QString MapActions::SaveAs(QWidget& parent) const {
  const QString file = QFileDialog::getSaveFileName(
      &parent, CaptionIn(choice_.Current, TextId::SaveMap), "map.png", PictureFilters().join(";;"));
  if (file.isEmpty()) return {};
  const QString written = SaveMap(screen_.Frame(), ShownPart(), file);
  return QString::fromStdString(
      written.isEmpty() ? FormatIn(choice_.Current, TextId::CannotWriteFile, file.toStdString())
                        : FormatIn(choice_.Current, TextId::MapSaved, written.toStdString()));
}

}  // namespace orrerix
