// SPDX-License-Identifier: MIT
#include "info/boxes/hover_box.h"

#include <algorithm>
#include <utility>

#include "db/values/number_text.h"
#include "map/grid/numeric.h"

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

ControlList BoxControls(const TwipRect& place, std::string text, HoveredIcon icon) {
  Control shape = BoxShape(place, ShapeForm::RoundedRectangle);
  shape.Subject = icon;
  const TwipRect inner{KeptAsFloat(place.Left + kMargin), KeptAsFloat(place.Top + kMargin),
                       place.Width - 2 * kMargin, place.Height - 2 * kMargin};
  return {std::move(shape), BoxText(inner, std::move(text))};
}

// Enlarges the icon and returns what it was before.
HoveredIcon Enlarge(Control& icon) {
  const HoveredIcon before{icon.Index.value_or(0), static_cast<float>(icon.Place.Width)};
  icon.Place.Width = kHoveredIcon;
  icon.Place.Height = kHoveredIcon;
  return before;
}

}  // namespace

HoverBox OpenHoverBox(Universe& universe, const CellNames& names, TextSource& texts,
                      const TextMeasure& measure, const MapDrawing& drawing, const Control& icon) {
  HoverBox hover{icon, {}};
  Routine routine(universe.Log, "OrrerixMain.Image1_MouseMove");
  routine.Run([&] {
    const HoveredIcon before = Enlarge(hover.Icon);
    HoverWriter writer(routine, universe, names, texts, IconText(icon));
    writer.Write();
    std::string text = writer.Take();
    const TextExtent extent = MeasureLines(routine, text, measure, kBoxFont);
    hover.Box =
        BoxControls(HoverBoxPlace(hover.Icon.Place, extent, drawing), std::move(text), before);
  });
  return hover;
}

HoverBox MovedHoverBox(const ControlList& box, const Control& icon, const MapDrawing& drawing) {
  HoverBox hover{icon, {}};
  const HoveredIcon before = Enlarge(hover.Icon);
  const TwipRect& place = box.front().Place;
  const TextExtent extent{WholeTwips(place.Width) - 2 * kMargin,
                          WholeTwips(place.Height) - 2 * kMargin};
  hover.Box = BoxControls(HoverBoxPlace(hover.Icon.Place, extent, drawing),
                          box.back().Caption.value_or(""), before);
  return hover;
}

Control RestoredIcon(Control icon, const HoveredIcon& hovered) {
  icon.Place.Width = icon.Place.Height = hovered.Width;
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

TwipRect HoverBoxPlace(const TwipRect& icon, const TextExtent& text, const MapDrawing& drawing) {
  TwipRect box{icon.Left, 0, static_cast<double>(text.Width + 2 * kMargin),
               static_cast<double>(text.Height + 2 * kMargin)};
  const bool above = icon.Top > drawing.Frame.Height / 2;
  box.Top = KeptAsFloat(above ? icon.Top - kIconGap - box.Height : icon.Bottom() + kIconGap);
  if (box.Right() > RoomForBox(drawing)) {
    box.Left = KeptAsFloat(std::max(icon.Right() - box.Width, kSmallestLeft));
  }
  return box;
}

}  // namespace orrerix
