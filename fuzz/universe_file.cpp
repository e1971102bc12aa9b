// SPDX-License-Identifier: MIT
#include <array>

#include "db/engine/working_copy.h"
#include "demo_universe.h"
#include "hostile_database.h"
#include "info/boxes/text_info_box.h"
#include "info/search/search.h"
#include "info/station/station_layout.h"
#include "info/texts/hover_text.h"
#include "map/redraw.h"
#include "shell/startup.h"

namespace {

using namespace orrerix;
namespace fs = std::filesystem;

constexpr std::array kModes = {StationMode::Prices, StationMode::Trades, StationMode::Info,
                               StationMode::Ships, StationMode::Equipment};

// What a player does with a universe that is open.
class Session {
 public:
  Session(Universe& universe, Steering& input) : universe_(universe), input_(input) {}

  void Run() {
    switch (input_.Below(5)) {
      case 0:
        return DrawTheMap();
      case 1:
        return SearchForIt();
      case 2:
        return OpenAStation();
      case 3:
        return ShowInfo();
      default:
        return Hover();
    }
  }

 private:
  void DrawTheMap() {
    MapState state;
    if (input_.Below(2) == 1) state.Zoom.Reset({4, 4, 12, 12});
    state.Names = GetSystemNames(universe_, texts_);
    const PanelContent panel = PanelTexts(texts_);
    DrawMap(universe_, state, {24000, 18000, MapOptions::Defaults(true), measure_, panel});
  }

  void SearchForIt() {
    const auto type = static_cast<SearchType>(input_.Below(4));
    const std::vector<SearchRow> rows = Search(universe_, type, input_.Text());
    if (!rows.empty()) SellersOf(universe_, type, rows.front());
  }

  void OpenAStation() {
    const StationMode mode = kModes[input_.Below(kModes.size())];
    const std::string nickname = AnyNickname("DockObjects");
    const StationData data = ReadStation(universe_, {}, texts_, nickname, mode);
    PriceRowNames(universe_, data, mode);
    const StationTexts texts = ReadStationTexts({}, mode, texts_);
    LayOutStation(universe_, wording_, measure_, {data, texts, mode, 12000, 9000});
  }

  void ShowInfo() {
    constexpr std::array tables = {"Ships", "gun", "shieldgenerator", "Groups"};
    const std::size_t which = input_.Below(tables.size());
    const auto type = std::array{InfoType::Ship, InfoType::Equipment, InfoType::Equipment,
                                 InfoType::Group}[which];
    GetInfoTextType(universe_, wording_, AnyNickname(tables[which]), type);
  }

  void Hover() {
    const std::string tag = IconTag(universe_, AnyNickname("DockObjects"));
    HoverText(universe_, {}, texts_, tag);
    OpensStation(universe_, tag);
  }

  std::string AnyNickname(std::string_view table) {
    IgnoreFailures ignore;
    Recordset rows = universe_.DB.OpenRecordset(ignore, "SELECT * FROM " + std::string(table));
    for (std::size_t skip = input_.Below(4); skip > 0 && !rows.AtEnd(); --skip) rows.MoveNext();
    return rows.AtEnd() ? std::string(input_.Text()) : rows["nickname"].Get().Text();
  }

  Universe& universe_;
  Steering& input_;
  FixedLanguage texts_{Language::English};
  Wording wording_{texts_, {}};
  FixedTextMeasure measure_;
};

}  // namespace

// The input says what is wrong with a universe file, and what is done with it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const HostileDatabase hostile(MakeDemoUniverse(4));
  Steering input(data, size);
  const fs::path file = UniverseFileIn(OwnFolder());
  hostile.Write(file, input);

  IgnoreFailures ignore;
  if (ExamineUniverse(ignore, OwnFolder(), CurrentVersion()) != UniverseState::Usable) return 0;
  if (input.Below(4) == 0) IsWarningWanted(ignore, file);
  NobodyThere messages(input.Below(2) == 0);
  ErrorLog log(messages, CurrentVersion());
  WorkingCopy copy;
  Database& opened = copy.Of(ignore, file);
  Universe universe{log, opened};
  Session(universe, input).Run();
  return 0;
}
