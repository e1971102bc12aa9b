// SPDX-License-Identifier: MIT
// The command line as a script sees it: arguments in, answer and exit code out.
#include <cctype>

#include "cli/command_line_fixture.h"
#include "db/engine/engine.h"
#include "map/control_id.h"
#include "platform/folder_lock.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

TEST_F(CommandLine, VersionsAreTold) {
  const Answer answer = Run("--version");

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_EQ(answer.Output, "orrerix-cli 1.0.0\n");
}

TEST_F(CommandLine, WrongWordsAreWrongUsage) {
  for (const char* words :
       {"", "dance", "import", "import --game x --loud", "name", "name five",
        "--language it name 5", "--on-failure maybe name 5", "scene --size 12 --database x",
        "scene --size 491506x9000 --database x", "scene --size 12000x491506 --database x"}) {
    const Answer answer = Run(words);
    EXPECT_EQ(answer.ExitCode, 2) << words;
    EXPECT_THAT(answer.Output, IsEmpty()) << words;
  }
}

TEST_F(CommandLine, AMistypedVerbNamesTheClosestOne) {
  const Answer answer = Run("scne --zoom 1,1,2,2");

  EXPECT_EQ(answer.ExitCode, 2);
  EXPECT_EQ(answer.Errors, "orrerix-cli: there is no verb 'scne'; did you mean 'scene'?\n");
}

TEST_F(CommandLine, AMistypedOptionNamesTheClosestOneOfItsVerbOrOfAll) {
  EXPECT_EQ(Run("scene --zom=1,1,2,2").Errors,
            "orrerix-cli: there is no option '--zom'; did you mean '--zoom'?\n");
  EXPECT_EQ(Run("scene --databas u.fl").Errors,
            "orrerix-cli: there is no option '--databas'; did you mean '--database'?\n");
}

TEST_F(CommandLine, AnEmptyTextOfAnOptionIsAText) {
  Import();

  for (const char* arguments :
       {"scene --options ''", "scene --zoom ''", "scene --info ''", "scene --size ''",
        "station x --layout ''", "station x --mode ''"}) {
    EXPECT_EQ(Run(std::string(arguments) + " " + Database()).ExitCode, 2) << arguments;
  }
  EXPECT_EQ(Run("scene --hover '' " + Database()).ExitCode, 1);
  EXPECT_EQ(Run("name 5 --database ''").ExitCode, 1);
  EXPECT_EQ(Import("--log ''").ExitCode, 1);
}

TEST_F(CommandLine, AnImportTellsTablesLogAndFailures) {
  const Answer answer = Import("--json --log " + (folder.Path() / "log.txt").string());

  ASSERT_EQ(answer.ExitCode, 0) << answer.Errors;
  const nlohmann::json json = answer.Json();
  EXPECT_EQ(json["tables"]["Systems"], 5);
  EXPECT_EQ(json["tables"]["Version"], 1);
  EXPECT_EQ(json["database"], (folder.Path() / "u.fl").string());
  EXPECT_THAT(json["failures"], IsEmpty());
  EXPECT_GE(json["seconds"], 0);
  EXPECT_GT(json["log_lines"], 0);
  EXPECT_THAT(Content(folder.Path() / "log.txt"), HasSubstr("Cant find file: ["));
}

TEST_F(CommandLine, WithoutAPlaceForItsLogNoImportBegins) {
  folder.Write("u.fl", "older");
  const std::string log = (folder.Path() / "nowhere" / "log.txt").string();

  const Answer answer = Import("--log " + log);

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_EQ(answer.Errors, "orrerix-cli: cannot write '" + log + "'\n");
  EXPECT_EQ(Content(folder.Path() / "u.fl"), "older");
}

TEST_F(CommandLine, WithoutALogFileTheLinesStandInTheAnswer) {
  EXPECT_THAT(Import().Output, HasSubstr("Cant find file: ["));
}

TEST_F(CommandLine, StrictTellsThatTheLogHasLines) {
  EXPECT_EQ(Import("--strict").ExitCode, 3);
}

TEST_F(CommandLine, ProgressIsNotShownWhereThereIsNoTerminal) {
  EXPECT_THAT(Import().Errors, IsEmpty());
}

TEST_F(CommandLine, AnOlderUniverseFileIsReplaced) {
  folder.Write("u.fl", "no database");

  EXPECT_EQ(Import().ExitCode, 0);
  EXPECT_EQ(Run("name 5 " + Database()).Output, "(5)\n");
}

TEST_F(CommandLine, AnImportThatCannotReplaceTheOlderFileLeavesIt) {
  const fs::path inside = folder.Write("u.fl/inside", "older");

  const Answer answer = Import();

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors,
              StartsWith("orrerix-cli: cannot put the new universe file in the place of '" +
                         (folder.Path() / "u.fl").string() + "'"));
  EXPECT_EQ(Content(inside), "older");
  EXPECT_FALSE(fs::exists(folder.Path() / "u.fl.import"));
}

TEST_F(CommandLine, AnUnfinishedUniverseFileIsToldByName) {
  folder.Write("u.fl", "");  // a database without any table

  const Answer answer = Run("name 5 " + Database());

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_EQ(answer.Errors, "orrerix-cli: '" + (folder.Path() / "u.fl").string() +
                               "' is no finished universe file; import it anew\n");
}

TEST_F(CommandLine, AFolderThatIsNoGameCannotBeImported) {
  const Answer answer = Run("import --game " + folder.Path().string() + " " + Database());

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr(folder.Path().string()));
  EXPECT_FALSE(fs::exists(folder.Path() / "u.fl"));
}

TEST_F(CommandLine, AFolderThatCannotBeMadeIsToldByName) {
  folder.Write("nowhere", "a file");
  const Answer answer = Run("import --game " + Game().string() + " --database " +
                            (folder.Path() / "nowhere" / "u.fl").string());

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("nowhere"));
}

TEST_F(CommandLine, AFailureIsPrintedInTheDialogsWordsAndCounted) {
  const fs::path game = Game();
  folder.Write("game/DATA/MISSIONS/mbases.ini", "[Systems]\r\nnickname = x\r\n");

  const Answer answer = Run("import --json --log " + (folder.Path() / "log.txt").string() +
                            " --game " + game.string() + " " + Database());

  EXPECT_EQ(answer.ExitCode, 0);
  ASSERT_EQ(answer.Json()["failures"].size(), 1u);
  EXPECT_EQ(answer.Json()["failures"][0]["number"], 3010);
  EXPECT_EQ(answer.Json()["failures"][0]["source"], "OrrerixMain.ReadINI");
  EXPECT_THAT(answer.Errors, HasSubstr("3010 in OrrerixMain.ReadINI Line 0"));
  EXPECT_THAT(answer.Errors, HasSubstr("OK = Resume Function behind Error."));
}

TEST_F(CommandLine, CancelGivesAFailedRoutineUpAndGoesOn) {
  const fs::path game = Game();
  folder.Write("game/DATA/MISSIONS/mbases.ini",
               "[Systems]\r\nnickname = x\r\n[mroom]\r\nnickname = bar\r\n");

  const Answer answer =
      Run("import --on-failure cancel --json --log " + (folder.Path() / "log.txt").string() +
          " --game " + game.string() + " " + Database());

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_FALSE(answer.Json()["tables"].contains("mroom"));
}

TEST_F(CommandLine, AUniverseThatIsMissingOrUnfinishedIsTold) {
  EXPECT_EQ(Run("name 5 " + Database()).ExitCode, 1);

  folder.Write("u.fl", "no database");

  const Answer answer = Run("scene " + Database());
  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("u.fl"));
}

TEST_F(CommandLine, NamesAndCardsComeByNumber) {
  Import();

  EXPECT_EQ(Run("name 65536 " + Database()).Output, "(65536)\n");
  EXPECT_EQ(Run("card 131077 --json " + Database()).Json()["text"].is_string(), true);
  EXPECT_EQ(Run("card 5 " + Database()).Output, "5 - 5\n");
}

TEST_F(CommandLine, ASceneTellsFrameCellsAndControls) {
  Import();

  const nlohmann::json scene = Run("scene --json " + Database()).Json();

  EXPECT_EQ(scene["form"]["Width"], 24000);
  EXPECT_EQ(scene["frame"]["Height"], 17450);
  EXPECT_EQ(scene["zoom"], (nlohmann::json{0, 0, 17, 18}));
  EXPECT_EQ(scene["depth"], 0);
  EXPECT_EQ(scene["zoomed"], false);
  EXPECT_EQ(scene["cell"]["Width"], 918);
  EXPECT_EQ(scene["panel"], "right");
  EXPECT_EQ(scene["controls"].back()["control"], ObjectName(ControlId::PanelFrame));
}

TEST_F(CommandLine, ASceneHeedsItsWords) {
  Import();

  const nlohmann::json scene =
      Run("scene --json --size 12000x9000 --zoom 7,5,8,6 --options 000000 --print " + Database())
          .Json();

  EXPECT_EQ(scene["form"]["Height"], 9000);
  EXPECT_EQ(scene["zoomed"], true);
  EXPECT_EQ(scene["frame"]["BackColor"], "0xFFFFFF");
  for (const auto& control : scene["controls"])
    EXPECT_NE(control["control"], ObjectName(ControlId::SystemLabel));
}

TEST_F(CommandLine, RectanglesAndSwitchesThatMakeNoSenseAreWrongUsage) {
  Import();

  for (const char* words : {"--zoom 0,0,18,18", "--zoom 5,0,4,3", "--zoom 1,2,3", "--zoom a,b,c,d",
                            "--options 01234", "--options 000002", "--options 0000000"}) {
    EXPECT_EQ(Run(std::string("scene ") + words + " " + Database()).ExitCode, 2) << words;
  }
}

TEST_F(CommandLine, AHoverEndsWithTheNicknameAsTheMapHasIt) {
  Import();
  const std::string nickname = FirstObject();
  std::string upper = nickname;
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));

  const Answer answer = Run("hover " + upper + " " + Database());

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_THAT(answer.Output, HasSubstr(" [X="));
  EXPECT_THAT(answer.Output, EndsWith(nickname + "\n"));
  EXPECT_EQ(
      Run("hover --json " + upper + " " + Database()).Json()["text"].get<std::string>() + "\n",
      answer.Output);
}

TEST_F(CommandLine, AHoverOverSomethingUnknownGivesItsNickname) {
  Import();

  EXPECT_EQ(Run("hover nowhere " + Database()).Output, "nowhere\n");
  EXPECT_EQ(Run("hover " + Database()).ExitCode, 2);
}

TEST_F(CommandLine, GesturesArePlayedInTheirOrder) {
  Import();
  const auto scene = [&](const std::string& words) {
    return Run("scene --json " + words + " " + Database()).Json();
  };

  // Cells of 918 twips: columns 7 and 8, rows 4 and 5; then cells of 8725, the first of them.
  const std::string first = "--drag 6500,3700,8200,5500 ";
  const std::string second = "--drag=100,100,200,200 ";
  EXPECT_EQ(scene(first)["zoom"], (nlohmann::json{7, 4, 8, 5}));
  EXPECT_EQ(scene(first + second)["zoom"], (nlohmann::json{7, 4, 7, 4}));
  EXPECT_EQ(scene(first + second)["depth"], 2);
  EXPECT_EQ(scene(first + "--back " + second)["zoom"], (nlohmann::json{0, 0, 0, 0}));
  EXPECT_EQ(scene(first + "--back --back " + second + "--back")["depth"], 0);
  EXPECT_EQ(scene("--drag -900,-900,100,100")["zoom"], (nlohmann::json{0, 0, 0, 0}));
}

TEST_F(CommandLine, BackFromARectangleOfTheWordsThereIsNothing) {
  Import();

  const nlohmann::json scene = Run("scene --json --zoom 7,5,8,6 --back " + Database()).Json();

  EXPECT_EQ(scene["zoom"], (nlohmann::json{7, 5, 8, 6}));
  EXPECT_EQ(scene["depth"], 0);
}

TEST_F(CommandLine, TilesOfAZoomedMapStayOnTheWholeGrid) {
  Import();
  const auto tiles = [&](const std::string& words) {
    int count = 0;
    const nlohmann::json scene = Run("scene --json " + words + " " + Database()).Json();
    for (const auto& control : scene["controls"])
      count += control["control"] == ObjectName(ControlId::BackgroundTile);
    return count;
  };

  EXPECT_EQ(tiles(""), 1);
  EXPECT_GT(tiles("--drag 500,500,700,700 --back"), 1);
}

TEST_F(CommandLine, ADragThatIsNotFourNumbersIsWrongUsage) {
  Import();

  for (const char* words : {"--drag 1,2,3", "--drag 1,2,3,x", "--drag", "--drag 1,2,3,4 5,6,7,8"}) {
    EXPECT_EQ(Run(std::string("scene ") + words + " " + Database()).ExitCode, 2) << words;
  }
}

TEST_F(CommandLine, AHoverEnlargesTheIconAndShowsItsBoxInFront) {
  Import();
  const std::string nickname = FirstObject();

  const nlohmann::json scene =
      Run("scene --json --zoom 0,0,17,17 --hover " + nickname + " " + Database()).Json();

  const nlohmann::json& controls = scene["controls"];
  ASSERT_GE(controls.size(), 2u);
  const nlohmann::json& shape = controls[controls.size() - 2];
  const nlohmann::json& text = controls.back();
  EXPECT_EQ(shape["control"], ObjectName(ControlId::BoxShape));
  EXPECT_EQ(text["control"], ObjectName(ControlId::BoxText));
  EXPECT_EQ(text["Caption"].get<std::string>() + "\n",
            Run("hover " + nickname + " " + Database()).Output);
  int hovered = 0;
  for (const auto& control : controls) {
    if (control["control"] != ObjectName(ControlId::MapIcon) || control["Width"] != 600) continue;
    ++hovered;
    EXPECT_EQ(control["Tag"], nickname);
    EXPECT_EQ(shape["Tag"], std::to_string(control["index"].get<int>()) + ",40");
  }
  EXPECT_EQ(hovered, 1);
}

TEST_F(CommandLine, AnObjectWithoutAnIconCannotBeHoveredOver) {
  Import();

  // The whole grid has no icons.
  const Answer answer = Run("scene --hover " + FirstObject() + " " + Database());

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr(FirstObject()));
  EXPECT_THAT(answer.Output, IsEmpty());
}

TEST_F(CommandLine, ASearchListsWhatThePanelLists) {
  ASSERT_EQ(Import().ExitCode, 0);

  const nlohmann::json ships = Run("search ship '' --json " + Database()).Json();
  ASSERT_FALSE(ships.empty());
  const std::string name = ships[0]["realname"];
  const Answer found = Run("search ship '" + name + "' " + Database());

  EXPECT_EQ(found.ExitCode, 0);
  EXPECT_THAT(found.Output, HasSubstr(ships[0]["nickname"].get<std::string>() + "\t" + name));
  EXPECT_EQ(Run("search wreck x " + Database()).ExitCode, 2);
}

TEST_F(CommandLine, ASearchTextThatBreaksItsStatementFindsNothingAndIsDone) {
  ASSERT_EQ(Import().ExitCode, 0);

  const Answer answer = Run("search place \"'\" --json " + Database());

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_EQ(answer.Json(), nlohmann::json::array());
  EXPECT_THAT(answer.Errors, HasSubstr("3075"));
}

TEST_F(CommandLine, SellersAreThoseOfTheListedRow) {
  ASSERT_EQ(Import().ExitCode, 0);
  const nlohmann::json ships = Run("search ship '' --json " + Database()).Json();
  const std::string nickname = ships[0]["nickname"];

  const Answer sellers = Run("sellers ship " + nickname + " --json " + Database());

  EXPECT_EQ(sellers.ExitCode, 0);
  for (const auto& place : sellers.Json()) {
    EXPECT_EQ(Run("hover " + place["nickname"].get<std::string>() + " " + Database()).ExitCode, 0);
    EXPECT_THAT(place["realname"].get<std::string>(), ::testing::Not(IsEmpty()));
  }
  EXPECT_EQ(Run("sellers ship nowhere " + Database()).ExitCode, 1);
  EXPECT_EQ(Run("sellers place nowhere " + Database()).ExitCode, 2);
}

TEST_F(CommandLine, AnInfoTextIsThatOfTheBox) {
  ASSERT_EQ(Import().ExitCode, 0);
  const nlohmann::json ships = Run("search ship '' --json " + Database()).Json();
  const std::string nickname = ships[0]["nickname"];

  const std::string text = Run("info ship " + nickname + " --json " + Database()).Json()["text"];
  const nlohmann::json scene =
      Run("scene --json --info ship:" + nickname + " " + Database()).Json();

  EXPECT_THAT(text, ::testing::StartsWith("\r\n   Price: "));
  const nlohmann::json& controls = scene["controls"];
  ASSERT_GE(controls.size(), 2u);
  EXPECT_EQ(controls[controls.size() - 2]["control"], ObjectName(ControlId::BoxShape));
  EXPECT_EQ(controls[controls.size() - 1]["control"], ObjectName(ControlId::BoxText));
  EXPECT_EQ(controls[controls.size() - 1]["Caption"], text);
}

TEST_F(CommandLine, WithoutAnInfoThereIsNoBox) {
  ASSERT_EQ(Import().ExitCode, 0);

  EXPECT_EQ(Run("info group nowhere --json " + Database()).Json()["text"], "");
  const Answer scene = Run("scene --info group:nowhere " + Database());
  EXPECT_EQ(scene.ExitCode, 0);
  EXPECT_THAT(scene.Output, ::testing::Not(HasSubstr(ObjectName(ControlId::BoxShape))));
  EXPECT_EQ(Run("scene --info nowhere " + Database()).ExitCode, 2);
  EXPECT_EQ(Run("scene --info wreck:nowhere " + Database()).ExitCode, 2);
}

TEST_F(CommandLine, TheInfoBoxTakesThePlaceOfTheHoverBox) {
  ASSERT_EQ(Import().ExitCode, 0);
  const std::string nickname = FirstObject();
  const nlohmann::json groups = Run("search bribe '' --json " + Database()).Json();
  const std::string words = "scene --json --zoom 0,0,17,17 --hover " + nickname +
                            " --info group:" + groups[0]["nickname"].get<std::string>() + " " +
                            Database();

  const nlohmann::json controls = Run(words).Json()["controls"];

  int shapes = 0;
  for (const auto& control : controls) {
    if (control["control"] != ObjectName(ControlId::BoxShape)) continue;
    ++shapes;
    EXPECT_EQ(control["Top"], 0);
    EXPECT_TRUE(control.contains("Tag"));  // the icon's own size is not forgotten
  }
  EXPECT_EQ(shapes, 1);
}

TEST_F(CommandLine, AStationTellsItsWindowsData) {
  ASSERT_EQ(Import().ExitCode, 0);
  const std::string nickname = FirstObject();

  const nlohmann::json station =
      Run("station " + nickname + " --json --layout 8000x12000 --mode I " + Database()).Json();

  for (const char* key : {"caption", "info", "base", "prices", "ships", "equipment", "controls"}) {
    EXPECT_TRUE(station.contains(key)) << key;
  }
  ASSERT_EQ(station["controls"].size(), 1u);
  EXPECT_EQ(station["controls"][0]["control"], ObjectName(ControlId::BoxText));
  EXPECT_FALSE(Run("station " + nickname + " --json " + Database()).Json().contains("controls"));
}

TEST_F(CommandLine, ViewsWithoutPricesNeedALayout) {
  ASSERT_EQ(Import().ExitCode, 0);

  EXPECT_EQ(Run("station nowhere --mode I " + Database()).ExitCode, 2);
  EXPECT_EQ(Run("station nowhere --mode x " + Database()).ExitCode, 2);
  EXPECT_EQ(Run("station nowhere --layout 12 " + Database()).ExitCode, 2);
  EXPECT_EQ(Run("station nowhere --mode '$' " + Database()).ExitCode, 0);
}

TEST_F(CommandLine, CommonOptionsMayStandBeforeTheVerb) {
  Import();

  EXPECT_EQ(Run(Database() + " --json name 5").Json()["text"], "(5)");
}

TEST_F(CommandLine, TheGameFolderStaysAsItIs) {
  const fs::path game = Game();
  const auto listing = [&] {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(game)) {
      files[entry.path().string()] = entry.is_regular_file() ? Content(entry.path()) : "";
    }
    return files;
  };
  const auto before = listing();

  Run("import --game " + game.string() + " " + Database());

  EXPECT_EQ(listing(), before);
}

TEST_F(CommandLine, AnImportMakesTheFolderOfTheUniverseFile) {
  const fs::path file = folder.Path() / "deep" / "er" / "u.fl";

  EXPECT_EQ(Run("import --game " + Game().string() + " --database " + file.string()).ExitCode, 0);

  EXPECT_TRUE(fs::exists(file));
  EXPECT_FALSE(fs::exists(file.string() + ".import"));
}

TEST_F(CommandLine, AnImportThatRunsIsNotDisturbed) {
  const fs::path work = folder.Path() / "u.fl.import";
  folder.Write("u.fl.import/build.mdb", "half built");
  const auto held = FolderLock::TryHold(work);

  const Answer answer = Import();

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("u.fl' is being imported by another process"));
  EXPECT_TRUE(fs::exists(work / "build.mdb"));
}

TEST_F(CommandLine, OptionsOfTravelOutOfRangeAreWrongUsage) {
  for (const char* arguments :
       {"way a b --cruise-speed 0", "way a b --lane-seconds -1", "way a b --gate-seconds x",
        "way a", "travel-times --impulse-speed ''", "trade --hops 7", "trade --hold 0",
        "trade --loop --hops 1", "trade --via x", "trade --from a --via b --to c",
        "trade --carry gold", "trade --from a --carry gold --loop", "trade --sort best",
        "trade --width 101", "trade --credits -1", "trade --max-minutes x"}) {
    const Answer answer = Run(std::string(arguments) + " --database nowhere");
    EXPECT_EQ(answer.ExitCode, 2) << arguments;
    EXPECT_THAT(answer.Output, IsEmpty()) << arguments;
  }
}

TEST_F(CommandLine, TravelTimesAreThoseOfTheWays) {
  Import();

  const nlohmann::json times = Run("travel-times --json " + Database()).Json();

  const std::size_t docks = times["docks"].size();
  ASSERT_GT(docks, 2u);
  ASSERT_EQ(times["seconds"].size(), docks);
  for (std::size_t i = 0; i < docks; ++i) EXPECT_EQ(times["seconds"][i][i], 0);
  const std::string from = times["docks"][0]["nickname"];
  const std::string to = times["docks"][docks - 1]["nickname"];
  const nlohmann::json way = Run("way --json " + from + " " + to + " " + Database()).Json();
  ASSERT_EQ(way["found"], true);
  EXPECT_EQ(way["seconds"], times["seconds"][0][docks - 1]);
  EXPECT_EQ(way["legs"].front()["kind"], "launch");
  EXPECT_EQ(way["legs"].back()["kind"], "dock");
}

TEST_F(CommandLine, WithoutAWayTheAnswerSaysWhy) {
  Import();
  const nlohmann::json docks = Run("travel-times --json " + Database()).Json()["docks"];
  const std::string from = docks[0]["nickname"];
  const std::string to = docks[docks.size() - 1]["nickname"];

  const Answer answer = Run("way --json " + from + " " + to + " --avoid " + to + " " + Database());

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_EQ(answer.Errors, "orrerix-cli: there is no way from '" + from + "' to '" + to + "'\n");
  const nlohmann::json json = answer.Json();
  EXPECT_EQ(json["found"], false);
  EXPECT_EQ(json["why"]["items"][0]["option"], "avoid");
  EXPECT_EQ(json["why"]["items"][0]["value"], to);
  EXPECT_EQ(Run("way x_nowhere " + to + " " + Database()).ExitCode, 1);
}

TEST_F(CommandLine, TradesAreShownUpToTheNumberAskedForAndAllAreCounted) {
  Import();

  const nlohmann::json json = Run("trade --json --top 2 " + Database()).Json();

  ASSERT_EQ(json["plans"].size(), 2u);
  EXPECT_GT(json["count"], 2);
  EXPECT_GE(json["plans"][0]["minute"], json["plans"][1]["minute"]);
  EXPECT_EQ(Run("trade --goods no_such_good " + Database()).ExitCode, 1);
}

TEST_F(CommandLine, AUniverseFileUnderALockIsToldByNameAndLeft) {
  Import();
  const std::string before = Content(folder.Path() / "u.fl");
  FailTest mustWork;
  orrerix::Database other = DBEngine::OpenDatabase(mustWork, folder.Path() / "u.fl");
  other.ExecuteNative(mustWork, "BEGIN EXCLUSIVE");

  const Answer answer = Import();

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("u.fl' is being used by another process"));
  EXPECT_THAT(answer.Output, IsEmpty());
  other.Close();
  EXPECT_EQ(Content(folder.Path() / "u.fl"), before);
}

}  // namespace
}  // namespace orrerix
