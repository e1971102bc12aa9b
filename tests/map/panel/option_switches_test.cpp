// SPDX-License-Identifier: MIT
#include "map/panel/option_switches.h"

#include <gmock/gmock.h>

#include "support/failure_sinks.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kTradeLanes = 4;

class Switches : public ::testing::Test {
 protected:
  Switches() {
    settings.CreateSettings();
    state.Objects.Icons = {MakePicture(ControlId::MapIcon, 1, {}, "Jumpgate")};
  }

  bool Unloaded() const { return state.Objects.Icons.empty(); }

  void Zoom() { state.Zoom.Reset({7, 4, 8, 5}); }
  SwitchAnswer Click(int which) {
    return switches.ToggleSwitch(which, ReadMapOptions(settings, state.Zoom.Current().IsZoomed()));
  }
  SwitchAnswer ClickLabel(int which) {
    return switches.ActivateOptionLabel(which,
                                        ReadMapOptions(settings, state.Zoom.Current().IsZoomed()));
  }

  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  TempFolder folder;
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  LanguageChoice choice;
  LanguageFile language{log, folder.Path(), JetVersionOption::Version30, choice};
  MapState state;
  // What a setting held when the sound came, sound by sound.
  std::vector<std::string> stored;
  std::string watched = "SET1-4";
  OptionSwitches switches{log, settings, language, state, [this](std::string_view path) {
                            EXPECT_EQ(path, R"(\DATA\AUDIO\SOUNDS\UI\ui_item_select.wav)");
                            stored.push_back(settings.ReadSetting(watched));
                          }};
};

TEST_F(Switches, EachViewHasItsOwnSet) {
  EXPECT_THAT(ReadMapOptions(settings, false).On,
              ElementsAre(false, false, true, true, true, true));
  EXPECT_THAT(ReadMapOptions(settings, true).On, ElementsAre(true, true, true, true, true, true));
}

TEST_F(Switches, ASettingThatIsNoNumberCountsAsOff) {
  settings.WriteSettingValue("SET2-3", "yes");
  settings.WriteSettingValue("SET2-4", "");
  settings.WriteSettingValue("SET2-5", " 2x");

  EXPECT_THAT(ReadMapOptions(settings, true).On, ElementsAre(true, true, true, false, false, true));
}

TEST_F(Switches, SettingsThatCannotBeReadCountAsOff) {
  Settings nowhere(log, folder.Path() / "nowhere", JetVersionOption::Version30);

  EXPECT_THAT(ReadMapOptions(nowhere, true).On,
              ElementsAre(false, false, false, false, false, false));
}

TEST_F(Switches, AClickTurnsOneOverAndStoresIt) {
  const SwitchAnswer answer = Click(kTradeLanes);

  EXPECT_EQ(settings.ReadSetting("SET1-4"), "0");
  EXPECT_TRUE(Unloaded());
  EXPECT_TRUE(answer.Redraw);
  EXPECT_FALSE(answer.ReadCaptions);

  Click(kTradeLanes);

  EXPECT_EQ(settings.ReadSetting("SET1-4"), "1");
}

TEST_F(Switches, TheSoundComesBeforeTheSettingIsWritten) {
  Click(kTradeLanes);

  EXPECT_THAT(stored, ElementsAre("1"));
  EXPECT_EQ(settings.ReadSetting(watched), "0");
}

TEST_F(Switches, AClickInAZoomedMapLeavesTheWholeGridsSetAlone) {
  Zoom();

  Click(kTradeLanes);

  EXPECT_EQ(settings.ReadSetting("SET2-4"), "0");
  EXPECT_EQ(settings.ReadSetting("SET1-4"), "1");
}

TEST_F(Switches, AClickOnTheWholeGridLeavesTheOtherSetAlone) {
  Click(0);

  EXPECT_EQ(settings.ReadSetting("SET1-0"), "1");
  EXPECT_EQ(settings.ReadSetting("SET2-0"), "1");
}

TEST_F(Switches, WhatThePanelShowsIsTurnedOverNotWhatIsStored) {
  MapOptions shown = ReadMapOptions(settings, false);
  settings.WriteSettingValue("SET1-4", "0");

  switches.ToggleSwitch(kTradeLanes, shown);

  EXPECT_EQ(settings.ReadSetting("SET1-4"), "0");
}

TEST_F(Switches, AClickOnACaptionIsAClickOnItsBox) {
  ClickLabel(5);

  EXPECT_EQ(settings.ReadSetting("SET1-5"), "0");
  EXPECT_TRUE(Unloaded());
}

TEST_F(Switches, TheLanguagesAreGoneThroughDownwards) {
  const SwitchAnswer answer = ClickLabel(6);

  EXPECT_EQ(language.Current(), Language::French);
  EXPECT_EQ(settings.ReadSetting("LANG"), "2");
  EXPECT_TRUE(answer.ReadCaptions);
  EXPECT_TRUE(answer.Redraw);
  EXPECT_FALSE(Unloaded());
  EXPECT_THAT(stored, IsEmpty());
}

TEST_F(Switches, ThreeClicksOnTheLanguageReturnToTheStart) {
  std::vector<Language> languages;
  for (int i = 0; i < 3; ++i) {
    ClickLabel(6);
    languages.push_back(language.Current());
  }

  EXPECT_THAT(languages, ElementsAre(Language::French, Language::German, Language::English));
  EXPECT_EQ(settings.ReadSetting("LANG"), "0");
}

TEST_F(Switches, AFailureNamesTheIndex) {
  const SwitchAnswer answer = switches.ToggleSwitch(6, {});

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.SetImage_Click");
  EXPECT_EQ(log.Failures()[0].Info, "Index: 6");
  EXPECT_EQ(log.Failures()[0].What.Number, 9);
  EXPECT_TRUE(answer.Redraw);
}

TEST_F(Switches, CancelAfterAFailureLeavesTheMapAsItIs) {
  messages.Answer = MessageAnswer::Cancel;

  const SwitchAnswer answer = switches.ToggleSwitch(6, {});

  EXPECT_FALSE(Unloaded());
  EXPECT_FALSE(answer.Redraw);
}

TEST_F(Switches, TouchingTheCaptionUnfoldsTheOptionsOnce) {
  EXPECT_TRUE(switches.UnfoldOptions(false));
  EXPECT_TRUE(state.OptionsOpen);
  EXPECT_FALSE(switches.UnfoldOptions(false));
}

TEST_F(Switches, WhileTheSearchPanelIsOpenTheOptionsStayFolded) {
  EXPECT_FALSE(switches.UnfoldOptions(true));
  EXPECT_FALSE(state.OptionsOpen);
}

}  // namespace
}  // namespace orrerix
