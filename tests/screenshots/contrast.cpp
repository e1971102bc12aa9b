// SPDX-License-Identifier: MIT
#include "contrast.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTableView>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "forms/map/sysmap_frame.h"
#include "picture/map_scene.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr double kEasyToRead = 4.5;

// Relative luminance as the accessibility guidelines define it.
double Luminance(double red, double green, double blue) {
  const auto linear = [](double channel) {
    const double share = channel / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
}
double Luminance(QRgb color) {
  return Luminance(qRed(color), qGreen(color), qBlue(color));
}

double Ratio(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// --- Labels on the map: their background is a picture.

struct PlacedLabel {
  const Control* Label;
  QRectF Place;
};

void Collect(const ControlList& controls, QPointF parent, std::vector<PlacedLabel>& labels) {
  for (const Control& control : controls) {
    const QRectF place = Pixels(control.Place).translated(parent);
    if (control.Kind == ControlKind::Label && !control.Caption.value_or("").empty()) {
      labels.push_back({&control, place});
    }
    Collect(control.Children, place.topLeft(), labels);
  }
}

// Lines in front of letters would pass for their background.
void Ink(ControlList& controls, Color ink) {
  std::erase_if(controls, [](const Control& c) { return c.Kind == ControlKind::Line; });
  for (Control& control : controls) {
    if (control.Kind == ControlKind::Label) control.ForeColor = ink;
    Ink(control.Children, ink);
  }
}

QImage Inked(MapDrawing drawing, Color ink, const QSize& size, double ratio) {
  Ink(drawing.Controls, ink);
  PictureStore pictures;
  MapScene scene(pictures);
  scene.Show(std::move(drawing));
  QImage image(size * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  QPainter painter(&image);
  scene.render(&painter, QRectF(QPointF(0, 0), size), QRectF(QPointF(0, 0), size));
  return image;
}

// Luminance of the background round the letters in a place. A pixel that the ink covers in part
// mixes both; drawing with two inks gives the shares.
std::vector<double> GroundOf(const QImage& white, const QImage& grey, const QRect& place) {
  constexpr double between = 255 - 128;
  constexpr double mostly = 0.35;
  std::vector<double> grounds;
  const QRect inside = place.intersected(white.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QRgb a = white.pixel(x, y);
      const double ink = (qGreen(a) - qGreen(grey.pixel(x, y))) / between;
      if (ink < 0.02 || ink > mostly) continue;
      const auto ground = [ink](int channel) {
        return std::clamp((channel - 255 * ink) / (1 - ink), 0.0, 255.0);
      };
      grounds.push_back(Luminance(ground(qRed(a)), ground(qGreen(a)), ground(qBlue(a))));
    }
  }
  return grounds;
}

// The contrast of letters on the brightest tenth of their background: most should be easy to read.
std::optional<double> RatioOn(std::vector<double> grounds, const QColor& letters) {
  if (grounds.empty()) return std::nullopt;
  const double ink = Luminance(letters.rgb());
  const auto near = [ink](double a, double b) { return Ratio(ink, a) > Ratio(ink, b); };
  std::sort(grounds.begin(), grounds.end(), near);
  return Ratio(ink, grounds[grounds.size() * 9 / 10]);
}

// --- Labels of windows: they too are painted with two inks.

QImage InkedLabel(QLabel& label, QColor ink) {
  const QPalette before = label.palette();
  QPalette palette = before;
  palette.setColor(label.foregroundRole(), ink);
  label.setPalette(palette);
  QImage image = label.grab().toImage();
  label.setPalette(before);
  return image;
}

// None for a text that is cut off, or of a style that knows its own colours.
std::optional<double> LabelRatio(QLabel& label) {
  if (label.fontMetrics().horizontalAdvance(label.text()) > label.width()) return std::nullopt;
  const QImage white = InkedLabel(label, QColor(255, 255, 255));
  const QImage grey = InkedLabel(label, QColor(128, 128, 128));
  return RatioOn(GroundOf(white, grey, white.rect()),
                 label.palette().color(label.foregroundRole()));
}

// --- Other controls, whose background has one colour.

// The background is the most frequent colour; the letters are what differs from it most.
double PlainRatio(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  if (counts.empty()) return 1;
  const auto ground =
      std::max_element(counts.begin(), counts.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  double most = 1;
  for (const auto& [color, count] : counts) {
    most = std::max(most, Ratio(Luminance(color), Luminance(ground->first)));
  }
  return most;
}

std::string TextOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text().toStdString();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return button->text().toStdString();
  }
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text().toStdString();
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    return text->toPlainText().left(40).toStdString();
  }
  const auto* list = qobject_cast<const QListWidget*>(&widget);
  return list != nullptr && list->count() > 0 ? list->item(0)->text().toStdString() : "";
}

// The inside of a control, without its frame.
QImage InsideOf(QWidget& window, const QWidget& widget) {
  constexpr int frame = 3;
  const QRect place(widget.mapTo(&window, QPoint(0, 0)), widget.size());
  return window.grab(place.adjusted(frame, frame, -frame, -frame)).toImage();
}

}  // namespace

void ContrastReport::Note(const std::string& kind, double ratio, const std::string& where) {
  const auto [entry, isNew] = lowest_.try_emplace(kind, Lowest{ratio, where});
  if (!isNew && ratio < entry->second.Ratio) entry->second = {ratio, where};
}

void ContrastReport::Measure(const QString& picture, QWidget& window) {
  const std::string name = picture.toStdString();
  for (SysmapFrame* frame : window.findChildren<SysmapFrame*>()) {
    if (!frame->isVisible()) continue;
    const auto& scene = static_cast<const MapScene&>(*frame->scene());
    const double ratio = window.devicePixelRatioF();
    const QImage white = Inked(scene.Drawing(), {0xFFFFFF}, frame->size(), ratio);
    const QImage grey = Inked(scene.Drawing(), {0x808080}, frame->size(), ratio);
    std::vector<PlacedLabel> labels;
    Collect(scene.Drawing().Controls, {}, labels);
    for (const auto& [label, place] : labels) {
      std::vector<double> grounds = GroundOf(
          white, grey, QRectF(place.topLeft() * ratio, place.size() * ratio).toAlignedRect());
      const auto contrast =
          RatioOn(std::move(grounds), ToQColor(label->ForeColor.value_or(Color{})));
      if (contrast)
        Note(std::string(PrintedName(label->Id)), *contrast, name + ": " + *label->Caption);
    }
  }
  for (const QTableView* table : window.findChildren<QTableView*>()) {
    if (table->isVisible()) MeasureTable(name, *table->model());
  }
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const std::string text = TextOf(*widget);
    if (text.empty() || !widget->isVisible() || !widget->isEnabled()) continue;
    const std::string kind = widget->objectName().isEmpty() ? widget->metaObject()->className()
                                                            : widget->objectName().toStdString();
    if (auto* label = qobject_cast<QLabel*>(widget)) {
      if (const auto contrast = LabelRatio(*label)) Note(name + " " + kind, *contrast, text);
      continue;
    }
    Note(name + " " + kind, PlainRatio(InsideOf(window, *widget)), text);
  }
}

void ContrastReport::MeasureTable(const std::string& picture, const QAbstractItemModel& model) {
  for (int row = 0; row < model.rowCount(); ++row) {
    const QModelIndex cell = model.index(row, 0);
    const auto color = [&cell](Qt::ItemDataRole role) {
      return Luminance(cell.data(role).value<QColor>().rgb());
    };
    const std::string ground = cell.data(Qt::BackgroundRole).value<QColor>().name().toStdString();
    Note("price row on " + ground, Ratio(color(Qt::ForegroundRole), color(Qt::BackgroundRole)),
         picture + ": " + cell.data().toString().toStdString());
  }
}

bool ContrastReport::Print() const {
  bool easy = true;
  for (const auto& [kind, lowest] : lowest_) {
    const bool low = lowest.Ratio < kEasyToRead;
    easy = easy && !low;
    fmt::print("{:6.2f} {} {:40} {}\n", lowest.Ratio, low ? "LOW" : "   ", kind,
               lowest.Where.substr(0, lowest.Where.find('\n')));
  }
  return easy;
}

}  // namespace orrerix
