// SPDX-License-Identifier: MIT
// The panel beside or below the map: tool icons, display options, info box with news and logo.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "map/drawing_list.h"
#include "map/grid/text_measure.h"
#include "map/panel/map_options.h"
#include "shell/error_log.h"
#include "shell/language.h"

namespace orrerix {

// One line of news.
struct NewsItem {
  std::string Caption;
  std::string ToolTip;
  std::string Link;
};

// What the panel shows, in the language in use.
struct PanelContent {
  std::array<std::string, 7> Options;  // of the switches, and the language
  std::string ShowOptions;
  std::string Slogan;  // above the logo
  std::string SloganTip;
  std::string Credit;  // below it
  std::string LogoTip;
  std::array<std::string, 5> ToolTips;  // of the tools
  std::vector<NewsItem> News;           // element 0 is the program's own
  double LogoWidth = 4;                 // natural size of the logo, in any unit
  double LogoHeight = 1;
};

// The captions from a language's texts, without news but the program's own line.
PanelContent PanelTexts(TextSource& texts);

// What a lay-out of the panel depends on besides its place.
struct PanelView {
  ErrorLog& Log;
  const PanelContent& Content;
  const MapOptions& Options;
  bool OptionsOpen = false;
  bool PrintMode = false;  // no border is visible
  const TextMeasure& Measure;
  // Of the info box's background as the screen last showed it, twips; a print keeps it.
  std::optional<double> BackgroundHeight = std::nullopt;
  // The form is narrow, beside the game: tools become smaller before anything else goes, and the
  // logo goes before the news.
  bool Compact = false;
};

struct SidePanel {
  ControlList Controls;      // children of the panel's frame, back to front
  bool NewsScrolls = false;  // the news does not fit
  bool Overhangs = false;    // tools and options reach over the panel's upper edge
  std::optional<double> BackgroundHeight = std::nullopt;  // of the info box, where it has one
};

// Lays out the panel at the map's right. `panel` is the place of its frame on the map frame. No
// width or height goes below 0. The captions of the frames are covered by what stands in them.
SidePanel LayOutPanelRight(const TwipRect& panel, const PanelView& view);

// The narrowest panel, twips, in which the tools can still be hit.
inline constexpr double kNarrowestPanel = 3000;

// The reduced panel below the map: news, logo, and in front of them tools and options where they
// were laid out in `atRight`, the panel's last place at the map's right. In a panel too low for
// them they are smaller, down to those of the narrowest panel, and reach up over the map if that is
// not enough, so that they can always be used.
SidePanel LayOutPanelBelow(const TwipRect& panel, const TwipRect& atRight, const PanelView& view);

}  // namespace orrerix
