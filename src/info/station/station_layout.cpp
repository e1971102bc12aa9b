// SPDX-License-Identifier: MIT
#include "info/station/station_layout.h"

#include <algorithm>
#include <utility>

#include "info/texts/info_text.h"
#include "info/texts/ship_text.h"
#include "info/texts/text_wrap.h"
#include "map/grid/numeric.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr int kGap = 50;        // between the left margin and a view
constexpr int kBelow = 200;     // what a view leaves of the window's height
constexpr int kListLeft = 120;  // of SearchList in its frame
constexpr int kListTop = 240;
constexpr int kListMargin = 200;  // beside the longest row
constexpr int kWrapMargin = 300;  // of the info text
constexpr Color kText{0x00CCCC};
constexpr Color kBack{0x400000};

Control InfoText(const TwipRect& place, std::string text) {
  Control info = MakeLabel(ControlId::BoxText, std::nullopt, place, std::move(text));
  info.FontSize = kStationText;
  info.ForeColor = kText;
  info.BackColor = kBack;
  return info;
}

// Sizes of what a view has at its disposal, whole twips.
struct Room {
  int Width;
  int Height;
};

Room RoomOf(const StationView& view) {
  return {std::max(0, WholeTwips(view.FormWidth - (kStationMargin + kGap))),
          std::max(0, WholeTwips(view.FormHeight - kBelow))};
}

ControlList InfoView(const TextMeasure& measure, const StationView& view) {
  const Room room = RoomOf(view);
  const TwipRect place{kStationMargin + kGap, 0, static_cast<double>(room.Width),
                       static_cast<double>(room.Height)};
  return {
      InfoText(place, WrapText(view.Data.Info, measure, kStationText, room.Width - kWrapMargin))};
}

ControlList ListView(Universe& universe, const Wording& wording, const TextMeasure& measure,
                     const StationView& view) {
  const Room room = RoomOf(view);
  const bool ships = view.Mode == StationMode::Ships;
  const std::vector<ForSale>& rows = ships ? view.Data.Ships : view.Data.Equipment;
  int widest = 0;
  for (const ForSale& row : rows) {
    widest = std::max(widest, measure.TextWidth(row.RealName, kStationText));
  }
  const double listWidth = widest + kListMargin;
  const double frameWidth = 2 * kListLeft + listWidth;
  Control frame =
      MakeFrame(ControlId::ForSaleFrame, std::nullopt,
                {kStationMargin, 0, frameWidth, static_cast<double>(room.Height)}, kBack);
  frame.Caption = wording.Texts.Text(ships ? TextId::SelectShip : TextId::SelectEquipment);
  frame.ForeColor = kText;
  Control list = MakeFrame(
      ControlId::ForSaleList, std::nullopt,
      {kListLeft, kListTop, listWidth, NotBelowZero(room.Height - 2.0 * kListTop)}, kBack);
  list.FontSize = kStationText;
  list.ForeColor = kText;
  std::string text;
  if (!rows.empty()) text = ForSaleText(universe, wording, view.Mode, rows.front());
  const TwipRect place{kStationMargin + frameWidth, 0, NotBelowZero(room.Width - frameWidth),
                       static_cast<double>(room.Height)};
  return {std::move(frame), std::move(list), InfoText(place, std::move(text))};
}

void WriteShipForSale(ShipWriter& writer, Routine& routine, Universe& universe,
                      std::string_view package) {
  writer.Add("\r\n");
  TableRow ship(routine, universe, "Ships", "packagename", package);
  if (!ship.Found()) return;
  writer.WriteHead(ship);
  writer.Add("\r\n\r\n Extra-Stats\r\n");
  writer.WriteFigures(ship);
}

}  // namespace

StationPicture LayOutStation(Universe& universe, const Wording& wording, const TextMeasure& measure,
                             const StationView& view) {
  StationPicture picture;
  Routine routine(universe.Log, "StationInfo.Form_Resize", "While resizing objects in Shipinfo");
  PriceTableWriter tables(routine, universe, measure, view.Mode);
  routine.Run([&] {
    switch (view.Mode) {
      case StationMode::Info:
        picture.Controls = InfoView(measure, view);
        return;
      case StationMode::Ships:
      case StationMode::Equipment:
        picture.Controls = ListView(universe, wording, measure, view);
        return;
      case StationMode::Prices:
      case StationMode::Trades: {
        const Room room = RoomOf(view);
        const TwipRect place{kStationMargin + kGap, 0, static_cast<double>(room.Width),
                             static_cast<double>(room.Height)};
        return tables.Write(view.Data.Prices, view.Texts.Heads, place);
      }
    }
  });
  picture.Prices = tables.Take();
  return picture;
}

std::string ForSaleText(Universe& universe, const Wording& wording, StationMode mode,
                        const ForSale& item) {
  Routine routine(universe.Log, "StationInfo.SearchList_Click", "While searching in Shipinfo");
  ShipWriter ship(routine, universe);
  std::string equipment;
  routine.Run([&] {
    if (mode == StationMode::Ships) {
      WriteShipForSale(ship, routine, universe, item.Nickname);
    } else {
      equipment = GetInfoTextType(universe, wording, item.Nickname, InfoType::Equipment);
    }
  });
  return ship.Take() + equipment;
}

}  // namespace orrerix
