// SPDX-License-Identifier: MIT
// The display switches and the language, as the options panel changes them.
#pragma once

#include <string_view>

#include "map/redraw.h"
#include "shell/settings.h"

namespace orrerix {

// The set of switches of a view, as the settings have it now. A setting that is no number counts as
// off.
MapOptions ReadMapOptions(Settings& settings, bool zoomed);

// What a click on the panel asks of the window, in this order.
struct SwitchAnswer {
  std::string_view Sound;      // path below the game folder, empty for none
  bool UnloadObjects = false;  // lines and icons are made anew by the next redraw
  bool LoadFormTXT = false;    // the captions are to be read in the new language
  bool Redraw = false;
};

// The panel's mouse events. Failures go to the user with the index of what was clicked.
class OptionSwitches {
 public:
  // All of these must outlive this.
  OptionSwitches(ErrorLog& log, Settings& settings, Language& language, MapState& state)
      : log_(log), settings_(settings), language_(language), state_(state) {}

  // The mouse touches the panel's caption: the options unfold, unless the search panel is open.
  // True if the map is to be redrawn.
  bool ShowOptionsLabelMouseMove(bool searchPanelOpen);

  // Turns a switch over, from what the panel shows, in the set of the current view.
  SwitchAnswer SetImageClick(int which, const MapOptions& shown);

  // The same for a click on the switch's caption; the language's label goes to the next language.
  SwitchAnswer SetLabelClick(int which, const MapOptions& shown);

 private:
  SwitchAnswer NextLanguage();

  ErrorLog& log_;
  Settings& settings_;
  Language& language_;
  MapState& state_;
};

}  // namespace orrerix
