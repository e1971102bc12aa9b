// SPDX-License-Identifier: MIT
#pragma once

#include "forms/start/import_screen_layout.h"

namespace orrerix {

// Places on the warning's form, twips.
struct SpoilerPlaces {
  FormPlace HeadLine;
  FormPlace Text;
  FormPlace Check1;
  FormPlace Ok;      // Command1(0)
  FormPlace Cancel;  // Command1(1)
};

// Lays the warning out on a form of this outer size. No width, height or place goes below 0.
SpoilerPlaces LayOutSpoiler(int width, int height);

}  // namespace orrerix
