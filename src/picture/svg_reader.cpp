// SPDX-License-Identifier: MIT
#include "picture/svg_reader.h"

#include <QColor>
#include <QHash>
#include <QLinearGradient>
#include <QRadialGradient>
#include <QXmlStreamReader>
#include <utility>

#include "picture/svg_path.h"

namespace orrerix {
namespace {

// What a group hands to what is in it.
struct Style {
  QBrush Fill = Qt::black;
  QBrush Stroke = Qt::NoBrush;
  double FillOpacity = 1;
  double StrokeOpacity = 1;
  double StrokeWidth = 1;
  Qt::PenCapStyle Cap = Qt::FlatCap;
  Qt::PenJoinStyle Join = Qt::SvgMiterJoin;
  QTransform Place;
};

double Number(const QXmlStreamAttributes& attributes, const char* name, double otherwise = 0) {
  const QStringView text = attributes.value(QLatin1String(name));
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  return isNumber ? number : otherwise;
}

QBrush Faded(QBrush brush, double opacity) {
  if (brush.style() != Qt::SolidPattern || opacity >= 1) return brush;
  QColor color = brush.color();
  color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
  brush.setColor(color);
  return brush;
}

QTransform TransformOf(QStringView text) {
  const qsizetype open = text.indexOf(u'(');
  if (open < 0) return {};
  const QStringView kind = text.first(open).trimmed();
  const std::vector<double> n = SvgNumbers(text.sliced(open + 1));
  if (kind == u"matrix" && n.size() == 6) return QTransform(n[0], n[1], n[2], n[3], n[4], n[5]);
  if (kind == u"translate" && n.size() == 2) return QTransform::fromTranslate(n[0], n[1]);
  if (kind == u"rotate" && n.size() == 3) {
    return QTransform().translate(n[1], n[2]).rotate(n[0]).translate(-n[1], -n[2]);
  }
  return {};
}

QPainterPath EllipseOf(const QXmlStreamAttributes& attributes, double rx, double ry) {
  QPainterPath path;
  path.addEllipse(QPointF(Number(attributes, "cx"), Number(attributes, "cy")), rx, ry);
  return path;
}

QPainterPath RectangleOf(const QXmlStreamAttributes& attributes) {
  const double rx = Number(attributes, "rx");
  QPainterPath path;
  path.addRoundedRect(QRectF(Number(attributes, "x"), Number(attributes, "y"),
                             Number(attributes, "width"), Number(attributes, "height")),
                      rx, Number(attributes, "ry", rx));
  return path;
}

class Reader {
 public:
  explicit Reader(QIODevice& device) : xml_(&device) {}

  std::optional<DrawnShapes> Read() {
    if (!xml_.readNextStartElement() || xml_.name() != u"svg") return std::nullopt;
    ReadSize(xml_.attributes());
    ReadContent(Style());
    if (xml_.hasError() || content_.Size.isEmpty() || content_.View.isEmpty()) return std::nullopt;
    return std::move(content_);
  }

 private:
  void ReadSize(const QXmlStreamAttributes& attributes) {
    content_.Size = QSizeF(Number(attributes, "width"), Number(attributes, "height")).toSize();
    const std::vector<double> view = SvgNumbers(attributes.value(QLatin1String("viewBox")));
    content_.View = view.size() == 4 ? QRectF(view[0], view[1], view[2], view[3])
                                     : QRectF(QPointF(0, 0), content_.Size);
  }

  void ReadContent(const Style& style) {
    while (xml_.readNextStartElement()) {
      const auto name = xml_.name();
      if (name == u"g") {
        ReadContent(Styled(style));
      } else if (name == u"defs") {
        ReadContent(style);
      } else if (name == u"linearGradient" || name == u"radialGradient") {
        ReadGradient();
      } else {
        ReadShape(name, style);
        xml_.skipCurrentElement();
      }
    }
  }

  void ReadShape(QStringView name, const Style& style) {
    const QXmlStreamAttributes attributes = xml_.attributes();
    if (name == u"path") {
      Add(SvgPath(attributes.value(QLatin1String("d"))), style);
    } else if (name == u"circle") {
      const double radius = Number(attributes, "r");
      Add(EllipseOf(attributes, radius, radius), style);
    } else if (name == u"ellipse") {
      Add(EllipseOf(attributes, Number(attributes, "rx"), Number(attributes, "ry")), style);
    } else if (name == u"rect") {
      Add(RectangleOf(attributes), style);
    }
  }

  void Add(const QPainterPath& path, const Style& inherited) {
    constexpr double miterLimit = 4;
    const Style style = Styled(inherited);
    QPen pen(Faded(style.Stroke, style.StrokeOpacity), style.StrokeWidth, Qt::SolidLine, style.Cap,
             style.Join);
    pen.setMiterLimit(miterLimit);
    if (style.Stroke.style() == Qt::NoBrush) pen = Qt::NoPen;
    content_.Shapes.push_back({path, Faded(style.Fill, style.FillOpacity), pen, style.Place});
  }

  // The style with what the current element says about it.
  Style Styled(Style style) const {
    for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
      const auto name = attribute.name();
      const auto value = attribute.value();
      if (name == u"fill") style.Fill = BrushOf(value);
      if (name == u"stroke") style.Stroke = BrushOf(value);
      if (name == u"fill-opacity") style.FillOpacity = value.toDouble();
      if (name == u"stroke-opacity") style.StrokeOpacity = value.toDouble();
      if (name == u"stroke-width") style.StrokeWidth = value.toDouble();
      if (name == u"stroke-linecap" && value == u"round") style.Cap = Qt::RoundCap;
      if (name == u"stroke-linejoin" && value == u"round") style.Join = Qt::RoundJoin;
      if (name == u"transform") style.Place = TransformOf(value) * style.Place;
    }
    return style;
  }

  QBrush BrushOf(QStringView value) const {
    constexpr QStringView reference = u"url(#";
    if (value.startsWith(reference)) {
      return gradients_.value(value.sliced(reference.size()).chopped(1).toString(), Qt::NoBrush);
    }
    return QColor::isValidColorName(value) ? QBrush(QColor::fromString(value)) : Qt::NoBrush;
  }

  void ReadGradient() {
    const QXmlStreamAttributes attributes = xml_.attributes();
    QGradient gradient = xml_.name() == u"linearGradient"
                             ? static_cast<QGradient>(QLinearGradient(
                                   Number(attributes, "x1"), Number(attributes, "y1"),
                                   Number(attributes, "x2"), Number(attributes, "y2")))
                             : QRadialGradient(Number(attributes, "cx"), Number(attributes, "cy"),
                                               Number(attributes, "r"));
    gradient.setInterpolationMode(QGradient::ComponentInterpolation);
    while (xml_.readNextStartElement()) {
      const QXmlStreamAttributes stop = xml_.attributes();
      QColor color(stop.value(QLatin1String("stop-color")).toString());
      color.setAlphaF(static_cast<float>(Number(stop, "stop-opacity", 1)));
      gradient.setColorAt(Number(stop, "offset"), color);
      xml_.skipCurrentElement();
    }
    gradients_.insert(attributes.value(QLatin1String("id")).toString(), QBrush(gradient));
  }

  QXmlStreamReader xml_;
  QHash<QString, QBrush> gradients_;
  DrawnShapes content_;
};

}  // namespace

std::optional<DrawnShapes> ReadSvg(QIODevice& device) {
  return Reader(device).Read();
}

}  // namespace orrerix
