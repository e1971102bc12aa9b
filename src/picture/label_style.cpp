// SPDX-License-Identifier: MIT
#include "picture/label_style.h"

#include "map/panel/map_options.h"

namespace orrerix {
namespace {

// Off the border of the panel, off the cell's edge, off the switch before the text.
constexpr double kBorderMargin = 8;
constexpr double kNameMargin = 3;
constexpr double kCheckMargin = 4;

}  // namespace

LabelStyle StyleOf(const Control& label, bool onPaper) {
  LabelStyle style;
  if (label.Id == ControlId::SystemLabel) {
    style.Transparent = true;
    style.Outlined = !onPaper;
    style.Overflows = true;
    style.Spared = true;
    style.MarginY = kNameMargin;
  } else if (label.Id == ControlId::OptionLabel && label.Index == kLanguageLabel) {
    style.Alignment = Qt::AlignRight | Qt::AlignBottom;
    style.MarginX = kBorderMargin;
    style.MarginY = kBorderMargin / 2;
  } else if (label.Id == ControlId::OptionLabel) {
    style.Alignment = Qt::AlignLeft | Qt::AlignTop;
    style.Wraps = true;
    style.MarginX = kCheckMargin;
  } else if (label.Id == ControlId::NewsLabel) {
    style.Outlined = true;
  } else if (label.Id == ControlId::BoxText) {
    style.Alignment = Qt::AlignLeft | Qt::AlignTop;
    style.FixedWidth = true;
    style.Lines = true;
    style.Transparent = true;
  }
  return style;
}

}  // namespace orrerix
