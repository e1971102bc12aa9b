// SPDX-License-Identifier: MIT
#include "info/hover_box.h"

#include <utility>

#include <fmt/format.h>

#include "db/number_text.h"
#include "map/numeric.h"

namespace orrerix {
namespace {

constexpr int kMargin = 150;   // between the box's sides and its text
constexpr int kIconGap = 100;  // between icon and box
constexpr double kSmallestLeft = 100;

// Adds to a 16-bit size, or leaves it as it is and fails.
void Grow(Routine& routine, int& size, int grown) {
  routine.Try([&] {
    const auto fits = ToInteger(grown);
    if (!fits) throw RuntimeFailure(failure_number::kOverflow);
    size = *fits;
  });
}

ControlList BoxControls(const Box& place, std::string text, std::string tag) {
  Control shape = BoxShape(place, ShapeForm::RoundedRectangle);
  shape.Tag = std::move(tag);
  const Box inner{KeptAsFloat(place.Left + kMargin), KeptAsFloat(place.Top + kMargin),
                  place.Width - 2 * kMargin, place.Height - 2 * kMargin};
  return {std::move(shape), BoxText(inner, std::move(text))};
}

// Enlarges the icon; the tag that says what it was before.
std::string Enlarge(Control& icon) {
  std::string tag = fmt::format("{},{}", icon.Index.value_or(0), NumberText(icon.Place.Width));
  icon.Place.Width = kHoveredIcon;
  icon.Place.Height = kHoveredIcon;
  return tag;
}

}  // namespace

HoverBox OpenHoverBox(Universe& universe, const CellNames& names, TextSource& texts,
                      const TextMeasure& measure, const MapDrawing& drawing, const Control& icon) {
  HoverBox hover{icon, {}};
  Routine routine(universe.Log, "OrrerixMain.Image1_MouseMove");
  routine.Run([&] {
    std::string tag = Enlarge(hover.Icon);
    std::string text = icon.Tag.value_or("");
    WriteHoverText(routine, universe, names, texts, text);
    const TextExtent extent = MeasureLines(routine, text, measure, kBoxFont);
    hover.Box = BoxControls(HoverBoxPlace(hover.Icon.Place, extent, drawing), std::move(text),
                            std::move(tag));
  });
  return hover;
}

HoverBox MovedHoverBox(const ControlList& box, const Control& icon, const MapDrawing& drawing) {
  HoverBox hover{icon, {}};
  std::string tag = Enlarge(hover.Icon);
  const Box& before = box.front().Place;
  const TextExtent extent{WholeTwips(before.Width) - 2 * kMargin,
                          WholeTwips(before.Height) - 2 * kMargin};
  hover.Box = BoxControls(HoverBoxPlace(hover.Icon.Place, extent, drawing),
                          box.back().Caption.value_or(""), std::move(tag));
  return hover;
}

Control RestoredIcon(Control icon, std::string_view shapeTag) {
  const std::size_t comma = shapeTag.find(',');
  if (comma == std::string_view::npos) return icon;
  const double size = KeptAsFloat(Val(shapeTag.substr(comma + 1)));
  icon.Place.Width = icon.Place.Height = size;
  return icon;
}

TextExtent MeasureLines(Routine& routine, std::string_view text, const TextMeasure& measure,
                        int fontSize) {
  TextExtent extent;
  ForEachLine(text, [&](std::string_view line) {
    const int width = measure.TextWidth(line, fontSize);
    if (width > extent.Width) Grow(routine, extent.Width, width);
    Grow(routine, extent.Height, extent.Height + measure.TextHeight(line, fontSize));
  });
  return extent;
}

Box HoverBoxPlace(const Box& icon, const TextExtent& text, const MapDrawing& drawing) {
  Box box{icon.Left, 0, static_cast<double>(text.Width + 2 * kMargin),
          static_cast<double>(text.Height + 2 * kMargin)};
  const bool above = icon.Top > drawing.Frame.Height / 2;
  box.Top = KeptAsFloat(above ? icon.Top - kIconGap - box.Height : icon.Bottom() + kIconGap);
  if (box.Right() > RoomForBox(drawing)) {
    box.Left = KeptAsFloat(MAX(kSmallestLeft, icon.Right() - box.Width));
  }
  return box;
}

}  // namespace orrerix
