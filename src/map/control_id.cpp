// SPDX-License-Identifier: MIT
#include "map/control_id.h"

#include <array>
#include <cstddef>

#include <fmt/format.h>

namespace orrerix {
namespace {

struct NamedControl {
  ControlId Id;
  std::string_view Name;
};

// In the order of ControlId.
constexpr std::array kNames = {
    NamedControl{ControlId::MapFrame, "SysmapFrame"},
    NamedControl{ControlId::BackgroundTile, "Hintergrund"},
    NamedControl{ControlId::PaintedUniverse, "StarMapPic"},
    NamedControl{ControlId::SystemPicture, "SysMapGfx"},
    NamedControl{ControlId::EmptyCell, "Blanko"},
    NamedControl{ControlId::SystemLabel, "SysmapLabel"},
    NamedControl{ControlId::MapLine, "Line1"},
    NamedControl{ControlId::MapIcon, "Image1"},
    NamedControl{ControlId::Border, "Rahmen"},
    NamedControl{ControlId::BoxShape, "Shape1"},
    NamedControl{ControlId::BoxText, "InfoText"},
    NamedControl{ControlId::CellCursor, "CellCursor"},
    NamedControl{ControlId::RubberBand, "MouseLine"},

    NamedControl{ControlId::PanelFrame, "MenuFrame"},
    NamedControl{ControlId::Tool, "StationSearch"},
    NamedControl{ControlId::OptionsCaption, "ShowOptionsLabel"},
    NamedControl{ControlId::OptionSwitch, "SetImage"},
    NamedControl{ControlId::OptionLabel, "SetLabel"},
    NamedControl{ControlId::InfoBoxPicture, "ITACImage"},
    NamedControl{ControlId::NewsLabel, "InfoBoxLabel"},
    NamedControl{ControlId::Logo, "ImageClan"},
    NamedControl{ControlId::InfoBoxLine, "WRTP"},

    NamedControl{ControlId::SearchFrame, "StSearchFrame"},
    NamedControl{ControlId::SearchCaption, "StSearchCaption"},
    NamedControl{ControlId::SearchText, "StSearchText"},
    NamedControl{ControlId::SearchClose, "StSearchClose"},
    NamedControl{ControlId::FoundList, "SubSearch"},
    NamedControl{ControlId::PlaceList, "StSearchList"},

    NamedControl{ControlId::StationStrip, "Image1"},
    NamedControl{ControlId::StationOrnament, "Image2"},
    NamedControl{ControlId::StationIcon, "Station"},
    NamedControl{ControlId::ModeButton, "Mode"},
    NamedControl{ControlId::PriceTable, "PriceTable"},
    NamedControl{ControlId::PriceHead, "PricesHead"},
    NamedControl{ControlId::PriceName, "PricesField0"},
    NamedControl{ControlId::Price, "PricesField1"},
    NamedControl{ControlId::PriceDifference, "PricesField2"},
    NamedControl{ControlId::ForSaleFrame, "SearchFrame"},
    NamedControl{ControlId::ForSaleList, "SearchList"},
};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (kNames[i].Id != static_cast<ControlId>(i)) return false;
  }
  return kNames.size() == static_cast<std::size_t>(ControlId::Count);
}
static_assert(IsInOrder());

}  // namespace

std::string_view PrintedName(ControlId id) {
  return kNames[static_cast<std::size_t>(id)].Name;
}

std::string ObjectName(ControlId id) {
  return std::string(PrintedName(id));
}

std::string ObjectName(ControlId id, int index) {
  return fmt::format("{}_{}", PrintedName(id), index);
}

}  // namespace orrerix
