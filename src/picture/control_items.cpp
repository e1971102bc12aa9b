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

#include "picture/form_font.h"
#include "picture/label_style.h"
#include "picture/picture_files.h"
#include "picture/plain_tool_tip.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kDesignFont = 8;
constexpr int kSmallestFont = 6;

// Its edges may go to the next whole pixel.
constexpr double kSnapMargin = 1;

constexpr Color kTradeLaneBlue{0xFF0000};
constexpr QColor kHalo(150, 190, 255, 190);

QRectF BoxOf(const Control& control) {
  return {0, 0, Pixels(control.Place.Width), Pixels(control.Place.Height)};
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
  void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
    pictures_.Draw(*painter, file_, BoxOf(Shown()), seen_);
  }

 private:
  PictureStore& pictures_;
  QString file_;
  QRectF seen_;
};

// A line is seen only; the mouse goes through it.
class LineItem : public ControlItem {
 public:
  LineItem(const Control& control, QGraphicsItem* parent)
      : ControlItem(control, parent),
        line_(Pixels(control.Ends.X1), Pixels(control.Ends.Y1), Pixels(control.Ends.X2),
              Pixels(control.Ends.Y2)) {
    setPos(0, 0);
    setAcceptedMouseButtons(Qt::NoButton);
  }

  QRectF boundingRect() const override {
    return QRectF(line_.p1(), line_.p2()).normalized().adjusted(-2, -2, 2, 2);
  }
  QPainterPath shape() const override { return {}; }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
    const double ratio = painter->device()->devicePixelRatioF();
    if (Shown().BorderColor == kTradeLaneBlue) DrawHalo(*painter, ratio);
    painter->setPen(PenOf(Shown(), ratio));
    painter->drawLine(line_);
  }

 private:
  // Pure blue is hardly seen on a dark sky. Between two light edges it is, and whoever sees no
  // blue tells a lane from a gate's line by them.
  void DrawHalo(QPainter& painter, double devicePixelRatio) const {
    QPen pen(kHalo, 3 * devicePixelRatio);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLine(line_);
  }

  // A pixel wide at every zoom; a logical one where the screen's own are finer.
  static QPen PenOf(const Control& control, double devicePixelRatio) {
    QPen pen(ToQColor(control.BorderColor), devicePixelRatio);
    pen.setCosmetic(true);
    switch (control.Style) {
      case LineStyle::Solid:
        break;
      case LineStyle::Dashed:
        pen.setStyle(Qt::DashLine);
        break;
      case LineStyle::Dotted:
        pen.setDashPattern({1, 2});
        break;
    }
    return pen;
  }

  QLineF line_;
};

class LabelItem : public ControlItem {
 public:
  LabelItem(const Control& control, QGraphicsItem* parent)
      : ControlItem(control, parent), style_(StyleOf(control)) {
    LayOut();
  }

  QRectF boundingRect() const override { return BoxOf(Shown()); }

  void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
    const Control& label = Shown();
    if (label.BackColor && !style_.Transparent) {
      painter->fillRect(BoxOf(label), ToQColor(*label.BackColor));
    }
    painter->setFont(font_);
    const QColor color = ToQColor(label.ForeColor.value_or(Color{}));
    // Black letters are those of a printed page.
    if (style_.Outlined && color != Qt::black) DrawOutline(*painter);
    painter->setPen(color);
    painter->drawStaticText(corner_, text_);
  }

 private:
  void LayOut() {
    const Control& label = Shown();
    const QRectF box =
        BoxOf(label).adjusted(style_.MarginX, style_.MarginY, -style_.MarginX, -style_.MarginY);
    QString caption = QString::fromStdString(label.Caption.value_or(""));
    text_.setTextFormat(Qt::PlainText);
    QTextOption option(style_.Alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(style_.Wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
    text_.setTextOption(option);
    text_.setTextWidth(box.width());
    int points = label.FontSize.value_or(kDesignFont);
    font_ = style_.FixedWidth ? FixedFont(points) : FormFont(points);
    if (style_.Wraps) {
      while (points > kSmallestFont && !Fits(caption, box)) font_ = FormFont(--points);
    } else if (style_.Lines) {
      caption.replace("\r\n", QString(QChar::LineSeparator));
    } else if (!style_.Overflows) {
      caption = QFontMetricsF(font_).elidedText(caption, Qt::ElideRight, box.width() + 1);
    }
    text_.setText(caption);
    text_.prepare({}, font_);
    corner_ = box.topLeft();
    if (style_.Alignment & Qt::AlignBottom) corner_.setY(box.bottom() - text_.size().height());
  }

  bool Fits(const QString& caption, const QRectF& box) const {
    const QRectF needed = QFontMetricsF(font_).boundingRect(
        box, static_cast<int>(Qt::TextWordWrap | style_.Alignment), caption);
    return needed.width() <= box.width() && needed.height() <= box.height();
  }

  void DrawOutline(QPainter& painter) {
    constexpr std::array<QPointF, 8> around = {QPointF(-1, 0), QPointF(1, 0),   QPointF(0, -1),
                                               QPointF(0, 1),  QPointF(-1, -1), QPointF(1, -1),
                                               QPointF(-1, 1), QPointF(1, 1)};
    painter.setPen(QColor(0, 0, 16, 150));
    for (const QPointF& offset : around) painter.drawStaticText(corner_ + offset, text_);
  }

  LabelStyle style_;
  QFont font_;
  QStaticText text_;
  QPointF corner_;
};

// A filled outline.
class ShapeItem : public ControlItem {
 public:
  using ControlItem::ControlItem;

  QRectF boundingRect() const override { return BoxOf(Shown()); }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
    constexpr double corner = 8;
    constexpr double halfPen = 0.5;
    painter->setPen(QPen(ToQColor(Shown().BorderColor), 2 * halfPen));
    painter->setBrush(ToQColor(Shown().BackColor.value_or(Color{})));
    const double radius = Shown().Shape == ShapeForm::RoundedRectangle ? corner : 0;
    const QRectF outline = boundingRect().adjusted(halfPen, halfPen, -halfPen, -halfPen);
    painter->drawRoundedRect(outline, radius, radius);
  }
};

// Clips its children to its box.
class FrameItem : public ControlItem {
 public:
  FrameItem(const Control& control, PictureStore& pictures, QGraphicsItem* parent)
      : ControlItem(control, parent) {
    setFlag(ItemClipsChildrenToShape);
    for (const Control& child : control.Children) {
      MakeControlItem(child, pictures, BoxOf(control), this);
    }
  }

  QRectF boundingRect() const override { return BoxOf(Shown()); }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
    if (!Shown().BackColor) return;
    // A ground ends with a whole pixel: half of one would let the map shine through.
    const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(BoxOf(Shown()), ToQColor(*Shown().BackColor));
    painter->setRenderHint(QPainter::Antialiasing, smooth);
  }
};

}  // namespace

ControlItem::ControlItem(const Control& control, QGraphicsItem* parent)
    : QGraphicsItem(parent), control_(&control) {
  setPos(Pixels(control.Place.Left), Pixels(control.Place.Top));
  if (control.ToolTip) setToolTip(PlainToolTip(*control.ToolTip));
}

void ControlItem::Rebind(const Control& same) {
  control_ = &same;
  const QList<QGraphicsItem*> children = childItems();
  for (qsizetype i = 0; i < children.size(); ++i) {
    static_cast<ControlItem*>(children[i])->Rebind(same.Children[static_cast<std::size_t>(i)]);
  }
}

ControlItem* MakeControlItem(const Control& control, PictureStore& pictures, const QRectF& open,
                             QGraphicsItem* parent) {
  switch (control.Kind) {
    case ControlKind::Line:
      return new LineItem(control, parent);
    case ControlKind::Label:
      return new LabelItem(control, parent);
    case ControlKind::Frame:
      if (control.Shape) return new ShapeItem(control, parent);
      return new FrameItem(control, pictures, parent);
    case ControlKind::Picture:
      break;
  }
  return new PictureItem(control, pictures, open, parent);
}

}  // namespace orrerix
