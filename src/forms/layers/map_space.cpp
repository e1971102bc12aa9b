// SPDX-License-Identifier: MIT
#include "forms/layers/map_space.h"

#include <QHelpEvent>
#include <QToolTip>
#include <cmath>
#include <utility>

#include "forms/layers/layer_areas.h"
#include "forms/layers/universe_snapshot.h"
#include "forms/workbench/setting_keys.h"
#include "forms/workbench/throw_failures.h"
#include "picture/form_font.h"
#include "picture/plain_tool_tip.h"
#include "picture/twips.h"
#include "space/describe.h"
#include "space/pick.h"
#include "space/read_space.h"

namespace orrerix {
namespace {

constexpr double kPointerReach = 7;  // pixels around the pointer

// What the panel leaves of the map frame, in pixels.
QRectF OpenPart(const MapDrawing& drawing) {
  QRectF open(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) open.setBottom(panel.top());
  return open;
}

std::shared_ptr<const Space> ReadUniverse(const std::filesystem::path& universe,
                                          const std::string& game,
                                          const BackgroundTask::IsCancelled& isCancelled) {
  try {
    ThrowFailures sink;
    const UniverseSnapshot snapshot(sink, universe);
    const SourceTables tables(sink, snapshot.Data());
    return std::make_shared<const Space>(ReadSpace(tables, GameFolder(game), isCancelled));
  } catch (const std::exception&) {
    // The map itself says what is wrong with the file.
    return nullptr;
  }
}

}  // namespace

MapSpace::MapSpace(MapScreen& screen, QSettings& settings, const LanguageChoice& language)
    : screen_(screen),
      settings_(settings),
      language_(language),
      areas_(new PaintedItem([this](QPainter& painter, const QRectF& exposed) {
        PaintAreas(painter, view_, exposed);
      })),
      labels_(new PaintedItem([this](QPainter& painter, const QRectF&) {
        PaintNames(painter, view_, names_, FormFont(kLabelPoints));
      })) {
  screen_.Scene().addItem(areas_);
  screen_.Scene().addItem(labels_);
  if (settings_.contains(setting_key::kLayers)) {
    choice_ = LayerChoice::FromText(settings_.value(setting_key::kLayers).toString().toStdString());
  }
  screen_.Frame().viewport()->installEventFilter(this);
}

MapSpace::~MapSpace() {
  delete labels_;
  delete areas_;
}

void MapSpace::Choose(const LayerChoice& choice) {
  choice_ = choice;
  settings_.setValue(setting_key::kLayers, QString::fromStdString(choice.Text()));
  Show();
}

void MapSpace::Read(const std::filesystem::path& universe, const std::string& game) {
  task_.Start(
      [universe, game](const BackgroundTask::IsCancelled& isCancelled) {
        return Outcome{ReadUniverse(universe, game, isCancelled)};
      },
      [this](Outcome outcome) {
        space_ = std::move(outcome.Read);
        Show();
        if (OnRead) OnRead();
      });
}

void MapSpace::Forget() {
  task_.Cancel();
  space_.reset();
  Show();
}

void MapSpace::MapRedrawn() {
  Show();
}

LayerView MapSpace::ViewOf(const MapDrawing& drawing) const {
  LayerView view;
  view.Shown = space_;
  view.Layers = choice_;
  view.Spoken = language_.Current;
  view.OnPaper = drawing.PrintMode;
  view.Cells = drawing.Cells;
  view.Visible = screen_.State().Zoom.Current();
  view.Open = OpenPart(drawing);
  for (const Control& control : drawing.Controls) {
    if (control.Id == ControlId::MapIcon) view.Icons.push_back(Pixels(control.Place));
  }
  return view;
}

void MapSpace::Show() {
  MapScene& scene = screen_.Scene();
  scene.Put(*areas_, Stratum::BelowLines);
  scene.Put(*labels_, Stratum::BelowPanel);
  if (LayerView next = ViewOf(scene.Drawing()); next != view_) {
    view_ = std::move(next);
    names_ = PlaceNames(view_, FormFont(kLabelPoints));
    const QRectF place = view_.IsEmpty() ? QRectF() : view_.Area();
    areas_->Renew(place);
    labels_->Renew(place);
  }
  scene.ShowSystemNames(view_.IsEmpty() || view_.IsOneSystem() || !choice_.Has(Layer::SystemNames));
}

double MapSpace::Reach() const {
  return view_.CellSize() > 0 ? kPointerReach / view_.CellSize() : 0;
}

std::optional<MapSpace::Point> MapSpace::PointAt(QPointF point) const {
  const double size = view_.CellSize();
  if (size <= 0 || !view_.Open.contains(point)) return std::nullopt;
  const ZoomRectangle& visible = view_.Visible;
  const double x = visible.X1 + point.x() / size;
  const double y = visible.Y1 + point.y() / size;
  const MapCell cell{static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))};
  if (!visible.Holds(cell.X, cell.Y)) return std::nullopt;
  return Point{cell, {x - cell.X, y - cell.Y}};
}

const Gate* MapSpace::GateAt(QPointF point) const {
  const auto at = PointAt(point);
  if (!at || view_.IsEmpty() || !choice_.Has(Layer::Gates)) return nullptr;
  return orrerix::GateAt(*space_, at->Cell, at->Place, 2 * Reach());
}

std::string MapSpace::TextAt(QPointF point) const {
  const auto at = PointAt(point);
  if (!at || view_.IsEmpty()) return {};
  return DescribePoint(*space_, choice_, language_.Current, at->Cell, at->Place, Reach());
}

// An icon has its hover box, and the panel its own tool tips.
bool MapSpace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QPointF point = screen_.Frame().mapToScene(help->pos());
  const ControlHit hit = screen_.Scene().HitAt(point);
  if (hit.OnPanel || (hit.Shown != nullptr && hit.Shown->Id == ControlId::MapIcon)) {
    return QObject::eventFilter(watched, event);
  }
  const std::string text = TextAt(point);
  if (text.empty()) return QObject::eventFilter(watched, event);
  QToolTip::showText(help->globalPos(), PlainToolTip(text), screen_.Frame().viewport());
  return true;
}

}  // namespace orrerix
