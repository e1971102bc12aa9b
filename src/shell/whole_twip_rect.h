// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// A place on a form in whole twips, from the form's upper left corner.
struct WholeTwipRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const WholeTwipRect&) const = default;
};

}  // namespace orrerix
