// SPDX-License-Identifier: MIT
#include "map/panel/option_switches.h"

#include <utility>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "map/game_sounds.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

std::string IndexText(int which) {
  return fmt::format("Index: {}", which);
}

}  // namespace

MapOptions ReadMapOptions(Settings& settings, bool zoomed) {
  MapOptions options;
  for (int i = 0; i < kMapSwitches; ++i) {
    options.On[static_cast<std::size_t>(i)] = IsOn(settings.ReadSetting(SettingKey(zoomed, i)));
  }
  return options;
}

bool OptionSwitches::UnfoldOptions(bool searchPanelOpen) {
  if (searchPanelOpen) return false;
  return !std::exchange(state_.OptionsOpen, true);
}

SwitchAnswer OptionSwitches::ToggleSwitch(int which, const MapOptions& shown) {
  SwitchAnswer answer;
  Routine routine(log_, "OrrerixMain.SetImage_Click", IndexText(which));
  routine.Run([&] {
    playSound_(kSwitchSound);
    routine.Try([&] {
      if (which < 0 || which >= kMapSwitches) {
        throw RuntimeFailure(failure_number::kSubscriptOutOfRange);
      }
      const bool on = !shown.On[static_cast<std::size_t>(which)];
      settings_.WriteSettingValue(SettingKey(state_.Zoom.Current().IsZoomed(), which),
                                  on ? "1" : "0");
    });
    UnloadObjects(state_);
    answer.Redraw = true;
  });
  return answer;
}

SwitchAnswer OptionSwitches::ActivateOptionLabel(int which, const MapOptions& shown) {
  SwitchAnswer answer;
  Routine routine(log_, "OrrerixMain.SetLabel_Click", IndexText(which));
  routine.Run(
      [&] { answer = which == kLanguageLabel ? NextLanguage() : ToggleSwitch(which, shown); });
  return answer;
}

// The languages are gone through downwards, from the first one to the last.
SwitchAnswer OptionSwitches::NextLanguage() {
  const int below = static_cast<int>(language_.Current()) - 1;
  language_.SetCurrent(static_cast<Language>(below < 0 ? static_cast<int>(kLanguages) - 1 : below));
  settings_.WriteSettingValue("LANG", NumberText(static_cast<std::int64_t>(language_.Current())));
  SwitchAnswer answer;
  answer.ReadCaptions = true;
  answer.Redraw = true;
  return answer;
}

}  // namespace orrerix
