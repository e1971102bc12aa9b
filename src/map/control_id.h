// SPDX-License-Identifier: MIT
// Which control is which, and the names that the command line prints.
#pragma once

#include <string>
#include <string_view>

namespace orrerix {

// A control or an array of controls. The elements of an array differ by their index.
enum class ControlId {
  // The map, back to front.
  MapFrame,
  BackgroundTile,
  PaintedUniverse,
  SystemPicture,
  EmptyCell,  // filler of a cell without a system
  SystemLabel,
  MapLine,  // jump connections and trade lanes
  MapIcon,
  Border,    // all eight pieces of all borders
  BoxShape,  // hover box or info box
  BoxText,   // its text, and that of a station window
  CellCursor,
  RubberBand,

  // The panel beside or below the map.
  PanelFrame,  // the panel, its options, its info box
  Tool,
  OptionsCaption,
  OptionSwitch,
  OptionLabel,     // beside a switch; the last one names the language
  InfoBoxPicture,  // head band and background
  NewsLabel,
  Logo,
  InfoBoxLine,  // slogan and credit

  // The search panel on the map.
  SearchFrame,
  SearchCaption,
  SearchText,
  SearchClose,
  FoundList,  // ships, equipment, bribes
  PlaceList,

  // A station window.
  StationStrip,
  StationOrnament,
  StationIcon,
  ModeButton,
  PriceTable,
  PriceHead,
  PriceName,
  Price,
  PriceDifference,
  ForSaleFrame,
  ForSaleList,

  Count
};

// The name of a control in the answers of the command line and in Qt's object tree.
std::string_view PrintedName(ControlId id);

// The same as a text of its own, for an element of an array with its index: "SetImage_3".
std::string ObjectName(ControlId id);
std::string ObjectName(ControlId id, int index);

}  // namespace orrerix
