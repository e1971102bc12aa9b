// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include "info/station/station_data.h"

namespace orrerix {

// The colours of a price table on the screen. Those of its groups differ in hue and in lightness,
// so that whoever does not see red or green can tell them apart, and letters stand out on each.
struct PriceColors {
  QColor Ground;
  QColor Letters;
};

// `group` from 0 to kPriceGroups - 1.
PriceColors PriceRowColors(int group);
PriceColors PriceHeadColors();

}  // namespace orrerix
