// SPDX-License-Identifier: MIT
#pragma once

#include "forms/start/import_screen_layout.h"

namespace orrerix {

// Places on the warning's form, twips.
struct SpoilerPlaces {
  WholeTwipRect HeadLine;
  WholeTwipRect Text;
  WholeTwipRect WarningOff;
  WholeTwipRect Ok;
  WholeTwipRect Cancel;
};

// Lays the warning out on a form of this outer size. No width, height or place goes below 0.
SpoilerPlaces LayOutSpoiler(int width, int height);

}  // namespace orrerix
