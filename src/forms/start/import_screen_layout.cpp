// SPDX-License-Identifier: MIT
#include "forms/start/import_screen_layout.h"

#include <algorithm>

#include "map/grid/numeric.h"

namespace orrerix {

ImportScreenLayout LayOutImportScreen(const ImportScreenInput& input) {
  ImportScreenLayout layout;
  WholeTwipRect& text = layout.Text;
  text.Left = 100;
  text.Top = 50;
  if (input.Importing) {
    WholeTwipRect& memory = layout.MemFrame;
    memory.Top = std::max(0, input.FormHeight - 500 - input.MemFrameHeight);
    memory.Width = std::max(0, input.FormWidth - 50);
    memory.Height = input.MemFrameHeight;
    text.Width = std::max(0, WholeTwips((input.FormWidth - 300) / 2.0 - 50));
    text.Height = std::max(0, memory.Top - text.Top);
    layout.Progress = {text.Left + text.Width + 100, text.Top, text.Width, text.Height};
  } else {
    text.Width = std::max(0, input.FormWidth - 300);
    text.Height = std::max(0, input.FormHeight - 1000);
  }
  const int below = text.Top + text.Height + 100;
  layout.StartButton = {std::max(0, input.FormWidth - 300 - input.ButtonWidth), below,
                        input.ButtonWidth, 0};
  layout.GameFolder = {text.Left, below, std::max(0, layout.StartButton.Left - text.Left - 200), 0};
  return layout;
}

WholeTwipRect ImportWindowPlace(int screenWidth, int screenHeight, int memFrameHeight) {
  WholeTwipRect place;
  place.Width = screenWidth;
  place.Height = WholeTwips(screenWidth / 2.0 + 300 + memFrameHeight);
  place.Top = std::max(0, WholeTwips(screenHeight / 2.0 - place.Height / 2.0));
  return place;
}

}  // namespace orrerix
