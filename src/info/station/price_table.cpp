// SPDX-License-Identifier: MIT
#include "info/station/price_table.h"

#include <algorithm>
#include <array>
#include <utility>

#include "db/values/text.h"
#include "derived/commodity_names.h"
#include "map/grid/numeric.h"
#include "map/grid/opt_font_size.h"

namespace orrerix {
namespace {

constexpr int kSampleFont = 10;

constexpr Color kHeadBack{0x400000};
constexpr Color kHeadText{0x00FFFF};
constexpr Color kRowText{0x000000};
constexpr std::array<Color, kPriceGroups> kGroupBacks = {Color{0xFFC0C0}, Color{0x0000FF},
                                                         Color{0x00C000}};
constexpr int kEmptyRows = 5;  // heads and air, in rows

bool IsTrade(const PriceItem& item, StationMode mode) {
  return mode != StationMode::Prices && item.Group != kPriceGroups - 1;
}

// The text up to the next comma, which is cut off with it.
std::string TakePart(std::string_view& key) {
  const std::size_t comma = key.find(',');
  std::string part(key.substr(0, comma));
  key.remove_prefix(comma == std::string_view::npos ? key.size() : comma + 1);
  return part;
}

std::string TradeName(Routine& routine, Universe& universe, std::string_view key) {
  const std::string system = TakePart(key);
  const std::string base = TakePart(key);
  std::string name;
  Recordset systemRow = universe.DB.OpenRecordset(
      routine, "SELECT realname FROM Systems WHERE ucase(nickname) = '{}'", {Ucase(system)});
  if (!systemRow.AtEnd()) name = systemRow["realname"].Get().Text();
  Recordset station = universe.DB.OpenRecordset(
      routine, "SELECT realname FROM DockObjects WHERE ucase(nickname) = '{}'", {Ucase(base)});
  if (!station.AtEnd()) name += ", " + station["realname"].Get().Text();
  return RealComName(universe, TakePart(key)) + " " + name;
}

std::string RowName(Routine& routine, Universe& universe, const PriceItem& item, StationMode mode) {
  return IsTrade(item, mode) ? TradeName(routine, universe, item.Good)
                             : RealComName(universe, item.Good);
}

// A size that fits, close to the largest one, so that the search from there is short.
int FittingFont(std::string_view text, const TextMeasure& measure, int width, int height) {
  const auto share = [](int room, int taken) {
    return taken > 0 ? kSampleFont * room / taken : kSampleFont;
  };
  int size = std::max(1, std::min(share(width, measure.TextWidth(text, kSampleFont)),
                                  share(height, measure.TextHeight(text, kSampleFont))));
  while (size > 1 &&
         (measure.TextWidth(text, size) > width || measure.TextHeight(text, size) > height)) {
    --size;
  }
  return size;
}

}  // namespace

std::vector<std::string> PriceRowNames(Universe& universe, const StationData& data,
                                       StationMode mode) {
  std::vector<std::string> names;
  Routine routine(universe.Log, "StationInfo.Form_Resize", "While resizing objects in Shipinfo");
  routine.Run([&] {
    for (const PriceItem& item : data.Prices) {
      names.push_back(RowName(routine, universe, item, mode));
    }
  });
  names.resize(data.Prices.size());
  return names;
}

void PriceTableWriter::Write(const std::vector<PriceItem>& items,
                             const std::array<std::string, kPriceGroups>& heads,
                             const TwipRect& place) {
  place_ = place;
  rowHeight_ = WholeTwips(place.Height / (static_cast<double>(items.size()) + kEmptyRows));
  for (int group = kPriceGroups - 1; group >= 0; --group) {
    tables_.push_back({group, Head(group, heads[static_cast<std::size_t>(group)]), {}});
    for (const PriceItem& item : items) {
      if (item.Group != group) continue;
      ++rows_;
      tables_.back().Rows.push_back(Row(item));
    }
  }
}

double PriceTableWriter::Top(int group) const {
  return static_cast<double>(rowHeight_) * (kPriceGroups - 1 - group + rows_);
}

PriceLabel PriceTableWriter::Head(int group, const std::string& caption) const {
  const TwipRect box{place_.Left, Top(group), place_.Width, static_cast<double>(rowHeight_)};
  return Label(box, caption, kHeadText, kHeadBack);
}

PriceRow PriceTableWriter::Row(const PriceItem& item) const {
  const double sixth = place_.Width / 6;
  const Color back = kGroupBacks[static_cast<std::size_t>(item.Group)];
  const double top = Top(item.Group);
  const auto column = [&](double left, double width) {
    return TwipRect{KeptAsFloat(place_.Left + left), top, KeptAsFloat(width),
                    static_cast<double>(rowHeight_)};
  };
  return {rows_,
          item.Good,
          IsTrade(item, mode_),
          Label(column(0, sixth * 4), RowName(routine_, universe_, item, mode_), kRowText, back),
          Label(column(sixth * 4, sixth), item.Price, kRowText, back),
          Label(column(sixth * 5, sixth), item.Difference, kRowText, back)};
}

PriceLabel PriceTableWriter::Label(const TwipRect& place, std::string caption, Color text,
                                   Color back) const {
  const int width = WholeTwips(place.Width);
  const int height = WholeTwips(place.Height);
  const int font =
      OptFontSize(caption, measure_, FittingFont(caption, measure_, width, height), width, height);
  return {std::move(caption), place, font, text, back};
}

}  // namespace orrerix
