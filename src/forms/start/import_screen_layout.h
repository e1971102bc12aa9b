// SPDX-License-Identifier: MIT
// Places on the first screen: before an import and during one.
#pragma once

namespace orrerix {

struct ImportScreenInput {
  int FormWidth = 0;  // outer size of the form, twips
  int FormHeight = 0;
  int ButtonWidth = 0;  // of Command1
  int MemFrameHeight = 0;
  bool Importing = false;
};

struct FormPlace {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const FormPlace&) const = default;
};

// All in twips; no width or height goes below 0. What an import has no use for is hidden during
// one, and the other way round; see the screen itself.
struct ImportScreenLayout {
  FormPlace Text1;
  FormPlace Text2;     // its height is the box's own
  FormPlace Command1;  // only its left and top
  FormPlace Progress;  // Progress(0), during an import
  FormPlace MemFrame;  // during an import
};

ImportScreenLayout LayOutImportScreen(const ImportScreenInput& input);

// Outer place of the window while it imports, on a screen of this size: as wide as the screen, so
// that the right half shows the progress.
FormPlace ImportWindowPlace(int screenWidth, int screenHeight, int memFrameHeight);

}  // namespace orrerix
