// SPDX-License-Identifier: MIT
// The panel beside or below the map: tool icons, display options, info box with news and logo.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "map/drawing_list.h"
#include "map/map_options.h"
#include "map/text_measure.h"
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
  std::array<std::string, 7> Options;  // SetLabel(0) to (6)
  std::string ShowOptions;
  std::string Slogan;                  // WRTP(0)
  std::string SloganTip;
  std::string Credit;                  // WRTP(1)
  std::string LogoTip;
  std::array<std::string, 5> ToolTips;  // StationSearch(0) to (4)
  std::vector<NewsItem> News;           // element 0 is the program's own
  double LogoWidth = 4;                 // natural size of the logo, in any unit
  double LogoHeight = 1;
};

// The captions from a language's texts, without news but the program's own line.
PanelContent PanelTexts(TextSource& texts);

struct SidePanel {
  ControlList Controls;      // children of MenuFrame(0), back to front
  bool NewsScrolls = false;  // the news does not fit
};

// Lays out the panel at the map's right, or in its reduced form below. `panel` is the place of
// MenuFrame(0) on the map frame. No width or height goes below 0.
SidePanel LayOutPanelRight(const Box& panel, const PanelContent& content,
                           const MapOptions& options, bool optionsOpen,
                           const TextMeasure& measure);
SidePanel LayOutPanelBelow(const Box& panel, const PanelContent& content);

}  // namespace orrerix
