// SPDX-License-Identifier: MIT
#include "picture/control_items.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QStaticText>
#include <QTextOption>
#include <algorithm>
#include <array>
#include <cmath>

#include "picture/form_font.h"
#include "picture/label_style.h"
#include "picture/line_items.h"
#include "picture/picture_files.h"
#include "picture/plain_tool_tip.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kDesignFont = 8;
constexpr int kSmallestFont = 6;

// Its edges may go to the next whole pixel.
constexpr double kSnapMargin = 1;

QRectF BoxOf(const Control& control) {
  return {0, 0, Pixels(control.Place.Width), Pixels(control.Place.Height)};
}

// A background ends on a whole pixel: half of one would let the map shine through.
void FillBackground(QPainter& painter, const Control& control, const QRectF& part) {
  if (!control.BackColor) return;
  const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(BoxOf(control).intersected(part), ToQColor(*control.BackColor));
  painter.setRenderHint(QPainter::Antialiasing, smooth);
}

int DotsPerMeter(int dotsPerInch) {
  constexpr double inchesPerMeter = 100 / 2.54;
  return static_cast<int>(std::lround(dotsPerInch * inchesPerMeter));
}

class PictureItem : public ControlItem {
 public:
  PictureItem(const Control& control, PictureStore& pictures, const QRectF& open,
              QGraphicsItem* parent)
      : ControlItem(control, parent),
        pictures_(pictures),
        file_(PictureFile(control)),
        seen_(open.translated(-pos()).intersected(BoxOf(control))) {}

  QRectF boundingRect() const override {
    return BoxOf(Shown()).adjusted(-kSnapMargin, -kSnapMargin, kSnapMargin, kSnapMargin);
  }
  QPainterPath shape() const override {
    QPainterPath box;
    box.addRect(BoxOf(Shown()));
    return box;
  }
  QString PictureName() const override { return file_; }
  QRectF Hides() const override {
    return pictures_.IsOpaque(file_) ? mapRectToScene(seen_) : QRectF();
  }
  QRect PaintedPixels(const QPainter& painter) const override {
    return PictureStore::PlaceOnDevice(painter, BoxOf(Shown())).toRect();
  }
  QRect HiddenPixels(const QPainter& painter) const override {
    pictures_.BringToHand(file_);
    if (!pictures_.IsOpaque(file_)) return {};
    return PaintedPixels(painter) & PictureStore::PlaceOnDevice(painter, seen_).toRect();
  }

  // A window shows the picture at hand now and a finer one a moment later; printouts and files wait
  // for the finest.
  void Draw(QPainter& painter, const QStyleOptionGraphicsItem&, QWidget* window) override {
    using Reading = PictureStore::Reading;
    const QRectF box = BoxOf(Shown());
    if (Shown().BackColor) painter.fillRect(box, ToQColor(*Shown().BackColor));
    pictures_.Draw(painter, file_, box, seen_,
                   window == nullptr ? Reading::AtOnce : Reading::Later);
    if (Shown().Bordered) DrawBorder(painter, box);
  }

 private:
  // On the device's whole pixels, as the picture is; half a pixel would be a pale one.
  void DrawBorder(QPainter& painter, const QRectF& box) const {
    const double width = painter.device()->devicePixelRatioF();
    const QRectF outer = PictureStore::PlaceOnDevice(painter, box);
    QPainterPath line;
    line.addRect(outer);
    line.addRect(outer.adjusted(width, width, -width, -width));
    const QTransform world = painter.worldTransform();
    painter.setWorldTransform(painter.deviceTransform().inverted() * world);
    painter.fillPath(line, ToQColor(Shown().BorderColor));
    painter.setWorldTransform(world);
  }

  PictureStore& pictures_;
  QString file_;
  QRectF seen_;
};

// Laid out text.
struct Letters {
  QStaticText Text;
  QFont Font;
  QPointF Corner;
  QColor Ink;
  bool Outlined = false;

  void Draw(QPainter& painter) const {
    painter.setFont(Font);
    if (Outlined) DrawOutline(painter);
    painter.setPen(Ink);
    painter.drawStaticText(Corner, Text);
  }

  void DrawOutline(QPainter& painter) const {
    constexpr std::array<QPointF, 8> around = {QPointF(-1, 0), QPointF(1, 0),   QPointF(0, -1),
                                               QPointF(0, 1),  QPointF(-1, -1), QPointF(1, -1),
                                               QPointF(-1, 1), QPointF(1, 1)};
    painter.setPen(QColor(0, 0, 16, 150));
    for (const QPointF& offset : around) painter.drawStaticText(Corner + offset, Text);
  }
};

class LabelItem : public ControlItem {
 public:
  LabelItem(const Control& control, PictureStore& pictures, bool onPaper, QGraphicsItem* parent)
      : ControlItem(control, parent), pictures_(pictures), style_(StyleOf(control, onPaper)) {
    LayOut();
  }

  QRectF boundingRect() const override { return BoxOf(Shown()); }

  QRectF NameLetters() const override {
    if (!style_.Spared) return {};
    const double width = QFontMetricsF(letters_.Font).horizontalAdvance(letters_.Text.text());
    const QRectF letters(letters_.Corner,
                         QSizeF(letters_.Text.textWidth(), letters_.Text.size().height()));
    const double beside = (letters.width() - width) / 2;
    return mapRectToScene(letters.adjusted(beside, 0, -beside, 0));
  }

  QRectF PaintedPart() const override { return mapRectToScene(LettersPart() | boundingRect()); }

  void Draw(QPainter& painter, const QStyleOptionGraphicsItem&, QWidget* window) override {
    if (!style_.Transparent) FillBackground(painter, Shown(), boundingRect());
    if (window != nullptr && AreOutlines(painter)) return DrawKept(painter);
    letters_.Draw(painter);
  }

  QString PictureName() const override {
    return QStringLiteral("%1|%2").arg(letters_.Text.text()).arg(letters_.Ink.rgb());
  }

 private:
  // Letters may leave the box, and swing out of the lines they stand in.
  QRectF LettersPart() const {
    const QFontMetricsF metrics(letters_.Font);
    const double width =
        std::max(letters_.Text.textWidth(), metrics.horizontalAdvance(letters_.Text.text()));
    const double beside = width - letters_.Text.textWidth() + metrics.height();
    const double above = metrics.height() / 2;
    const QRectF letters(letters_.Corner,
                         QSizeF(letters_.Text.textWidth(), letters_.Text.size().height()));
    return letters.adjusted(-beside, -above, beside, above);
  }

  // No more than that, as the font measures it. Of several lines it is not known.
  QRectF InkPart() const {
    const QFontMetricsF metrics(letters_.Font);
    if (style_.Wraps || style_.Lines || letters_.Text.size().height() > metrics.height() + 1) {
      return LettersPart();
    }
    const double width = metrics.horizontalAdvance(letters_.Text.text());
    const QRectF ink = metrics.tightBoundingRect(letters_.Text.text());
    const double beside = std::max(0.0, width - letters_.Text.textWidth()) +
                          std::max(0.0, -ink.left()) + std::max(0.0, ink.right() - width) + 2;
    const QRectF letters(letters_.Corner.x(), letters_.Corner.y() + metrics.ascent() + ink.top(),
                         letters_.Text.textWidth(), ink.height());
    return letters.adjusted(-beside, -2, beside, 2);
  }

  // Whether Qt has no pictures of letters in this size, and fills the outline of each of them.
  bool AreOutlines(const QPainter& painter) const {
    const QTransform toDevice = painter.deviceTransform();
    constexpr int largestWithPicture = 64;
    return toDevice.type() <= QTransform::TxScale &&
           painter.paintEngine()->type() == QPaintEngine::Raster &&
           letters_.Font.pixelSize() * toDevice.m22() >= largestWithPicture;
  }

  // Filling them takes ten times as long as copying a picture of them.
  void DrawKept(QPainter& painter) {
    const QTransform toDevice = painter.deviceTransform();
    const QRect place = toDevice.mapRect(InkPart()).toAlignedRect();
    const QTransform toPicture = toDevice * QTransform::fromTranslate(-place.left(), -place.top());
    // So that the fonts are the same.
    const QSize dots(DotsPerMeter(painter.device()->logicalDpiX()),
                     DotsPerMeter(painter.device()->logicalDpiY()));
    const auto make = [letters = letters_, size = place.size(), toPicture, dots,
                       hints = painter.renderHints()] {
      QImage image(size, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::transparent);
      image.setDotsPerMeterX(dots.width());
      image.setDotsPerMeterY(dots.height());
      QPainter own(&image);
      own.setRenderHints(hints);
      own.setWorldTransform(toPicture);
      letters.Draw(own);
      own.end();
      return QPixmap::fromImage(std::move(image));
    };
    const QString detail = QStringLiteral("%1|%2|%3|%4")
                               .arg(letters_.Font.key())
                               .arg(toPicture.m22())
                               .arg(toPicture.dx())
                               .arg(toPicture.dy());
    const QTransform world = painter.worldTransform();
    painter.setWorldTransform(toDevice.inverted() * world);
    pictures_.DrawMade(painter, {PictureName(), place.size(), detail}, place.topLeft(), make);
    painter.setWorldTransform(world);
  }

  void LayOut() {
    const Control& label = Shown();
    letters_.Ink = ToQColor(label.ForeColor.value_or(Color{}));
    letters_.Outlined = style_.Outlined;
    const QRectF box =
        BoxOf(label).adjusted(style_.MarginX, style_.MarginY, -style_.MarginX, -style_.MarginY);
    QString caption = QString::fromStdString(label.Caption.value_or(""));
    letters_.Text.setTextFormat(Qt::PlainText);
    QTextOption option(style_.Alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(style_.Wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
    letters_.Text.setTextOption(option);
    letters_.Text.setTextWidth(box.width());
    int points = label.FontSize.value_or(kDesignFont);
    letters_.Font = style_.FixedWidth ? FixedFont(points) : FormFont(points);
    if (style_.Wraps) {
      while (points > kSmallestFont && !Fits(caption, box)) letters_.Font = FormFont(--points);
    } else if (style_.Lines) {
      caption.replace("\r\n", QString(QChar::LineSeparator));
    } else if (!style_.Overflows) {
      caption = QFontMetricsF(letters_.Font).elidedText(caption, Qt::ElideRight, box.width() + 1);
    }
    letters_.Text.setText(caption);
    letters_.Text.prepare({}, letters_.Font);
    letters_.Corner = box.topLeft();
    if (style_.Alignment & Qt::AlignBottom)
      letters_.Corner.setY(box.bottom() - letters_.Text.size().height());
  }

  bool Fits(const QString& caption, const QRectF& box) const {
    const QRectF needed =
        QFontMetricsF(letters_.Font)
            .boundingRect(box, static_cast<int>(Qt::TextWordWrap | style_.Alignment), caption);
    return needed.width() <= box.width() && needed.height() <= box.height();
  }

  PictureStore& pictures_;
  LabelStyle style_;
  Letters letters_;
};

// A filled outline.
class ShapeItem : public ControlItem {
 public:
  using ControlItem::ControlItem;

  QRectF boundingRect() const override { return BoxOf(Shown()); }
  void Draw(QPainter& painter, const QStyleOptionGraphicsItem&, QWidget*) override {
    constexpr double corner = 8;
    constexpr double halfPen = 0.5;
    painter.setPen(QPen(ToQColor(Shown().BorderColor), 2 * halfPen));
    painter.setBrush(ToQColor(Shown().BackColor.value_or(Color{})));
    const double radius = Shown().Shape == ShapeForm::RoundedRectangle ? corner : 0;
    const QRectF outline = boundingRect().adjusted(halfPen, halfPen, -halfPen, -halfPen);
    painter.drawRoundedRect(outline, radius, radius);
  }
};

class FrameItem : public ControlItem {
 public:
  FrameItem(const Control& control, PictureStore& pictures, const ItemView& view,
            QGraphicsItem* parent)
      : ControlItem(control, parent) {
    setFlag(ItemClipsChildrenToShape, control.ClipsChildren);
    for (const Control& child : control.Children) {
      const QRectF open = control.ClipsChildren ? BoxOf(control) : Pixels(child.Place);
      MakeControlItem(child, pictures, {open, view.OnPaper}, this);
    }
  }

  QRectF boundingRect() const override { return BoxOf(Shown()); }
  QRectF Hides() const override {
    return Shown().BackColor ? mapRectToScene(BoxOf(Shown())) : QRectF();
  }
  // Not where what stands in it hides the background anyway.
  void Draw(QPainter& painter, const QStyleOptionGraphicsItem&, QWidget*) override {
    if (!Shown().BackColor) return;
    QRegion open(boundingRect().toAlignedRect());
    for (const QGraphicsItem* child : childItems()) {
      const QRectF hides = static_cast<const ControlItem*>(child)->Hides();
      open -= WholePixelsWithin(mapRectFromScene(hides));
    }
    for (const QRect& part : open) {
      // What hides it goes to the device's pixels, which may be one less than it asks for.
      FillBackground(painter, Shown(), QRectF(part.adjusted(-1, -1, 1, 1)));
    }
  }
};

}  // namespace

QRect WholePixelsWithin(const QRectF& box) {
  const QPoint corner(static_cast<int>(std::ceil(box.left())),
                      static_cast<int>(std::ceil(box.top())));
  const QPoint end(static_cast<int>(std::floor(box.right())),
                   static_cast<int>(std::floor(box.bottom())));
  return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

ControlItem::ControlItem(const Control& control, QGraphicsItem* parent)
    : QGraphicsItem(parent), control_(&control) {
  setPos(Pixels(control.Place.Left), Pixels(control.Place.Top));
  if (control.ToolTip) setToolTip(PlainToolTip(*control.ToolTip));
}

void ControlItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                        QWidget* widget) {
  if (still_ == nullptr || !still_->AreKept) Draw(*painter, *option, widget);
}

void ControlItem::SetStill(StillItems* still) {
  if (still == still_) return;
  MarkChanged();
  still_ = still;
  MarkChanged();
}

void ControlItem::MarkChanged() const {
  if (still_ != nullptr) still_->Changes.Add(PaintedPart());
}

void ControlItem::SetChanged() {
  update();
  if (still_ != nullptr) still_->Changes.AddAll();
}

void ControlItem::Rebind(const Control& same) {
  control_ = &same;
  const QList<QGraphicsItem*> children = childItems();
  for (qsizetype i = 0; i < children.size(); ++i) {
    static_cast<ControlItem*>(children[i])->Rebind(same.Children[static_cast<std::size_t>(i)]);
  }
}

ControlItem* MakeControlItem(const Control& control, PictureStore& pictures, const ItemView& view,
                             QGraphicsItem* parent) {
  switch (control.Kind) {
    case ControlKind::Line:
      return new LinesItem({&control, 1}, view, parent);
    case ControlKind::Label:
      return new LabelItem(control, pictures, view.OnPaper, parent);
    case ControlKind::Frame:
      if (control.Shape) return new ShapeItem(control, parent);
      return new FrameItem(control, pictures, view, parent);
    case ControlKind::Picture:
      break;
  }
  return new PictureItem(control, pictures, view.Open, parent);
}

}  // namespace orrerix
