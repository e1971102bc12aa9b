// SPDX-License-Identifier: MIT
// The display switches and the language, as the options panel changes them.
#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include "map/redraw.h"
#include "shell/settings.h"

namespace orrerix {

// The set of switches of a view, as the settings have it now. A setting that is no number counts as
// off.
MapOptions ReadMapOptions(Settings& settings, bool zoomed);

// What a click on the panel asks of the window, in this order.
struct SwitchAnswer {
  bool ReadCaptions = false;  // the captions are to be read in the new language
  bool Redraw = false;
};

// The panel's mouse events. Failures go to the user with the index of what was clicked.
class OptionSwitches {
 public:
  // Plays the sound with this path below the game folder.
  using PlaySound = std::function<void(std::string_view path)>;

  // All of these must outlive this.
  OptionSwitches(ErrorLog& log, Settings& settings, LanguageFile& language, MapState& state,
                 PlaySound playSound)
      : log_(log),
        settings_(settings),
        language_(language),
        state_(state),
        playSound_(std::move(playSound)) {}

  // The mouse touches the panel's caption: the options unfold, unless the search panel is open.
  // True if the map is to be redrawn.
  bool UnfoldOptions(bool searchPanelOpen);

  // Turns a switch over, from what the panel shows, in the set of the current view. The sound comes
  // first, then the setting is written; the objects on the map are unloaded.
  SwitchAnswer ToggleSwitch(int which, const MapOptions& shown);

  // The same for a click on the switch's caption; the language's label goes to the next language.
  SwitchAnswer ActivateOptionLabel(int which, const MapOptions& shown);

 private:
  SwitchAnswer NextLanguage();

  ErrorLog& log_;
  Settings& settings_;
  LanguageFile& language_;
  MapState& state_;
  PlaySound playSound_;
};

}  // namespace orrerix
