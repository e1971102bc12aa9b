// SPDX-License-Identifier: MIT
// One import of a real mod, and what must come out of it.
#include <map>

#include <gmock/gmock.h>

#include "db/engine/working_copy.h"
#include "derived/stages.h"
#include "import/import_driver.h"
#include "info/search/search.h"
#include "info/station/station_data.h"
#include "map/redraw.h"
#include "support/temp_folder.h"
#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;

// Imports once for all tests of the suite.
class RealData : public ::testing::Test {
 protected:
  struct Result {
    TempFolder Save;
    FakeMessageBoxes Messages;
    ErrorLog Log{Messages, CurrentVersion()};
    FakeHost Host;
    Database DB;
    bool Finished = false;
  };

  static void SetUpTestSuite() {
    result = new Result;
    const GameFolder game(ORRERIX_REAL_GAME);
    result->Finished =
        ImportGame(result->Log, result->Host, result->DB,
                   {game, result->Save.Path(), JetVersionOption::Version30, CurrentVersion()},
                   DerivedStages())
            .Finished;
  }
  static void TearDownTestSuite() { delete result; }

  static Result* result;
  FailTest mustWork;
};

RealData::Result* RealData::result = nullptr;

TEST_F(RealData, TheImportEndsWithoutAFailure) {
  EXPECT_TRUE(result->Finished);
  EXPECT_THAT(result->Log.Failures(), IsEmpty());
  EXPECT_EQ(result->Log.DataLines().size(), 117u);
}

TEST_F(RealData, EveryTableHasItsRows) {
  const std::map<std::string, std::int64_t> expected = {{"Systems", 54},
                                                        {"Objects", 3509},
                                                        {"Goods", 1306},
                                                        {"BaseGoods", 13316},
                                                        {"BaseGoodPrices", 2577},
                                                        {"Groups", 60},
                                                        {"Packages", 671},
                                                        {"Ships", 128},
                                                        {"Ships_Hardpoints", 713},
                                                        {"Loadout_Cargo", 19385},
                                                        {"GF_NPC", 2302},
                                                        {"commodity", 130},
                                                        {"DataFiles", 38},
                                                        {"resources", 7},
                                                        {"ids_info", 5736},
                                                        {"ids_name", 8884},
                                                        {"JumpNodes", 114},
                                                        {"TradeLanes", 111},
                                                        {"DockObjects", 327},
                                                        {"OXWarning", 0},
                                                        {"Version", 1},
                                                        {"zone", 4527},
                                                        {"encounterparameters", 1055},
                                                        {"gun", 735},
                                                        {"munition", 724},
                                                        {"basefaction", 613},
                                                        {"mroom", 420}};

  for (const auto& [table, rows] : expected) {
    Recordset count =
        result->DB.OpenRecordset(mustWork, "SELECT count(*) AS n FROM " + QuoteName(table));
    EXPECT_EQ(count["n"].Get(), Value(rows)) << table;
  }
}

TEST_F(RealData, FiftyFiveTablesComeFromSectionsThatTheProgramDoesNotKnow) {
  std::size_t generic = 0;
  for (const TableDef& table : result->DB.TableDefs(mustWork)) {
    if (table.Find("OX_ID")) ++generic;
  }

  EXPECT_EQ(generic, 55u);
}

TEST_F(RealData, WholeGridAndZoomedMapAreDrawnWithoutAFailure) {
  Universe universe{result->Log, result->DB};
  FixedLanguage english(Language::English);
  FixedTextMeasure measure;
  const PanelContent panel = PanelTexts(english);
  MapState state;
  state.Names = GetSystemNames(universe, english);

  for (const ZoomRectangle& rectangle : {ZoomRectangle{}, ZoomRectangle{7, 5, 9, 8}}) {
    state.Zoom.Reset(rectangle);
    const MapDrawing drawing =
        DrawMap(universe, state,
                {24000, 18000, MapOptions::Defaults(rectangle.IsZoomed()), measure, panel});
    EXPECT_GT(drawing.Controls.size(), 200u);
  }

  EXPECT_THAT(result->Log.Failures(), IsEmpty());
}

TEST_F(RealData, AGunTellsWhatItDoes) {
  FixedLanguage english{Language::English};
  Universe universe{result->Log, result->DB};

  const std::string text =
      GetInfoTextType(universe, Wording{english, {}}, "fc_or_gun01_mark02", InfoType::Equipment);

  // From the mod's files: price 140, refire 0.12, power 16.47, speed 750, hull damage 52.7, energy
  // damage 0, life 0.8. 1 / 0.12 = 8.33; 750 x 0.8 = 600; 52.7 x 0.12 = 6.324; half of it 3.162.
  EXPECT_THAT(text, ::testing::StartsWith("\r\n   Price: 140  -  "));
  EXPECT_THAT(text,
              ::testing::EndsWith("\r\n\r\n          Refire-Rate: 0.12 = 8.33 Shots per second"
                                  "\r\n          Power-Usage: 16.47"
                                  "\r\n     Projectile-Speed: 750"
                                  "\r\n     Needed Hardpoint: hp_gun_special_6"
                                  "\r\n\r\n             LifeTime: 0.80 = 600 Range"
                                  "\r\n          Hull-Damage: 6.32 = 53 per second"
                                  "\r\n        Shield-Damage: 3.16 = 26 per second"));
}

TEST_F(RealData, EverySearchListsSomethingAndEveryPlaceHasItsWindow) {
  FixedLanguage english{Language::English};
  WorkingCopy copy;
  Universe universe{result->Log, copy.Of(mustWork, result->Save.Path() / "Orrerix.fl")};
  const CellNames names = GetSystemNames(universe, english);
  for (const SearchType type : {SearchType::Ship, SearchType::Equipment, SearchType::Bribe}) {
    const auto found = Search(universe, type, "");
    ASSERT_FALSE(found.empty());
    SellersOf(universe, type, found.front());
  }

  for (const SearchRow& place : Search(universe, SearchType::Place, "")) {
    const StationData data =
        ReadStation(universe, names, english, place.Nickname, StationMode::Trades);
    EXPECT_TRUE(data.Caption.starts_with(place.RealName)) << place.Nickname;
  }

  EXPECT_THAT(result->Log.Failures(), IsEmpty());
}

}  // namespace
}  // namespace orrerix
