// SPDX-License-Identifier: MIT
#include "info/price_table.h"

#include <array>
#include <utility>

#include "db/text.h"
#include "derived/commodity_names.h"
#include "map/numeric.h"
#include "map/opt_font_size.h"

namespace orrerix {
namespace {

constexpr int kSampleFont = 10;

constexpr Color kHeadBack{0x400000};
constexpr Color kHeadText{0x00FFFF};
constexpr Color kRowText{0x000000};
constexpr std::array<Color, kPriceGroups> kGroupBacks = {Color{0xFFC0C0}, Color{0x0000FF},
                                                         Color{0x00C000}};
constexpr int kEmptyRows = 5;  // heads and air, in rows
constexpr const char* kTradeTip = "...";

bool IsTrade(const PriceItem& item, StationMode mode) {
  return mode != StationMode::Prices && item.Group != kPriceGroups - 1;
}

// The text up to the next comma, which is cut off with it.
std::string TakePart(std::string_view& key) {
  const std::size_t comma = key.find(',');
  const std::string part(key.substr(0, comma));
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

// A size that fits, near the largest one: from there the search for that is short, and sure.
int FittingFont(std::string_view text, const TextMeasure& measure, int width, int height) {
  const auto share = [](int room, int taken) {
    return taken > 0 ? kSampleFont * room / taken : kSampleFont;
  };
  int size = MAXI(1, MINI(share(width, measure.TextWidth(text, kSampleFont)),
                          share(height, measure.TextHeight(text, kSampleFont))));
  while (size > 1 &&
         (measure.TextWidth(text, size) > width || measure.TextHeight(text, size) > height)) {
    --size;
  }
  return size;
}

class TableWriter {
 public:
  TableWriter(Routine& routine, Universe& universe, const TextMeasure& measure,
              const StationData& data, StationMode mode, const Box& place, ControlList& controls)
      : routine_(routine),
        universe_(universe),
        measure_(measure),
        data_(data),
        mode_(mode),
        place_(place),
        rowHeight_(
            WholeTwips(place.Height / (static_cast<double>(data.Prices.size()) + kEmptyRows))),
        controls_(controls) {}

  void Write(const std::array<std::string, kPriceGroups>& heads) {
    for (int group = kPriceGroups - 1; group >= 0; --group) {
      WriteHead(group, heads[static_cast<std::size_t>(group)]);
      for (const PriceItem& item : data_.Prices) {
        if (item.Group == group) WriteRow(item);
      }
    }
  }

 private:
  double Top(int group) const {
    return static_cast<double>(rowHeight_) * (kPriceGroups - 1 - group + row_);
  }

  void WriteHead(int group, std::string caption) {
    const Box box{place_.Left, Top(group), place_.Width, static_cast<double>(rowHeight_)};
    Control& head = AddLabel("PricesHead", group, box, std::move(caption), kHeadBack);
    head.ForeColor = kHeadText;
  }

  void WriteRow(const PriceItem& item) {
    ++row_;
    const double sixth = place_.Width / 6;
    const Color back = kGroupBacks[static_cast<std::size_t>(item.Group)];
    const double top = Top(item.Group);
    const auto column = [&](double left, double width) {
      return Box{KeptAsFloat(place_.Left + left), top, KeptAsFloat(width),
                 static_cast<double>(rowHeight_)};
    };
    Control& name = AddLabel("PricesField0", row_, column(0, sixth * 4),
                             RowName(routine_, universe_, item, mode_), back);
    name.Tag = item.Good;
    if (IsTrade(item, mode_)) name.ToolTip = kTradeTip;
    AddLabel("PricesField1", row_, column(sixth * 4, sixth), item.Price, back);
    AddLabel("PricesField2", row_, column(sixth * 5, sixth), item.Difference, back);
  }

  // A label in the largest font that fits it.
  Control& AddLabel(const char* name, int index, const Box& box, std::string caption, Color back) {
    Control label = MakeLabel(name, index, box, std::move(caption));
    const int width = WholeTwips(box.Width);
    const int height = WholeTwips(box.Height);
    label.FontSize =
        OptFontSize(*label.Caption, measure_, FittingFont(*label.Caption, measure_, width, height),
                    width, height);
    label.ForeColor = kRowText;
    label.BackColor = back;
    return controls_.emplace_back(std::move(label));
  }

  Routine& routine_;
  Universe& universe_;
  const TextMeasure& measure_;
  const StationData& data_;
  StationMode mode_;
  Box place_;
  int rowHeight_;
  int row_ = 0;
  ControlList& controls_;
};

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

void WritePriceTable(Routine& routine, Universe& universe, const TextMeasure& measure,
                     const StationData& data, const StationTexts& texts, StationMode mode,
                     const Box& place, ControlList& controls) {
  TableWriter(routine, universe, measure, data, mode, place, controls).Write(texts.Heads);
}

}  // namespace orrerix
