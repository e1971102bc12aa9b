// SPDX-License-Identifier: MIT
#include "forms/map/map_glide.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kMostTime = 150;  // milliseconds
constexpr int kMostSlowPictures = 3;

QTransform Between(const CellGeometry& from, const CellGeometry& to) {
  const double scale = double(to.CellSize()) / from.CellSize();
  const QPointF shift = QPointF(Pixels(to.CellLeft(0)), Pixels(to.CellTop(0))) -
                        QPointF(Pixels(from.CellLeft(0)), Pixels(from.CellTop(0))) * scale;
  return QTransform(scale, 0, 0, scale, shift.x(), shift.y());
}

// A part of the way; scales multiply, so that the movement is even.
QTransform PartOf(const QTransform& whole, double part) {
  const double scale = std::pow(whole.m11(), part);
  const double share = whole.m11() == 1 ? part : (scale - 1) / (whole.m11() - 1);
  return QTransform(scale, 0, 0, scale, whole.dx() * share, whole.dy() * share);
}

bool CanMove(const MapDrawing& shown, const MapDrawing& next) {
  return !shown.PrintMode && !next.PrintMode && shown.Frame == next.Frame &&
         shown.Cells.CellSize() > 0 && next.Cells.CellSize() > 0;
}

}  // namespace

QRectF OpenPart(const MapDrawing& drawing) {
  QRectF open(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) open.setBottom(panel.top());
  return open;
}

int DesktopGlideTime(const QWidget& widget) {
  const QString platform = QGuiApplication::platformName();
  if (platform == "offscreen" || platform == "minimal") return 0;
  const int time =
      widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget);
  return std::clamp(time, 0, kMostTime);
}

MapGlide::MapGlide(QGraphicsView& frame) : QWidget(frame.viewport()), frame_(frame) {
  setObjectName("MapGlide");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
  movement_.setStartValue(0.0);
  movement_.setEndValue(1.0);
  movement_.setEasingCurve(QEasingCurve::OutCubic);
  connect(&movement_, &QVariantAnimation::valueChanged, this, [this] { update(); });
  connect(&movement_, &QVariantAnimation::finished, this, [this] { Stop(); });
}

void MapGlide::Stop() {
  movement_.stop();
  before_ = QPixmap();
  hide();
}

void MapGlide::Take(const MapDrawing& shown, const MapDrawing& next) {
  Stop();
  const bool isWanted =
      movement_.duration() > 0 && frame_.isVisible() && slowPictures_ < kMostSlowPictures;
  if (!isWanted || !CanMove(shown, next)) return;
  end_ = Between(shown.Cells, next.Cells);
  if (end_.isIdentity()) return;
  QElapsedTimer clock;
  clock.start();
  from_ = OpenPart(shown);
  open_ = OpenPart(next);
  before_ = frame_.viewport()->grab();
  slowPictures_ = clock.elapsed() > patience_ ? slowPictures_ + 1 : 0;
}

void MapGlide::Start() {
  if (before_.isNull()) return;
  if (slowPictures_ > 0) return Stop();
  setGeometry(open_.toRect());
  show();
  raise();
  movement_.start();
}

void MapGlide::paintEvent(QPaintEvent*) {
  const double part = movement_.currentValue().toDouble();
  QPainter painter(this);
  painter.setOpacity(1 - part);
  painter.translate(-geometry().topLeft());
  painter.setClipRect(open_);
  painter.setTransform(PartOf(end_, part), true);
  painter.drawPixmap(from_, before_,
                     QRectF(from_.topLeft() * before_.devicePixelRatio(),
                            from_.size() * before_.devicePixelRatio()));
}

}  // namespace orrerix
