// SPDX-License-Identifier: MIT
#include <filesystem>

#include "hostile_database.h"
#include "map/panel/option_switches.h"
#include "shell/language.h"
#include "shell/settings.h"

namespace {

using namespace orrerix;
namespace fs = std::filesystem;

// The application folder of this process.
struct Files {
  explicit Files(MessageBoxes& messages) : Log(messages, AppVersion{1, 0, 0}) {}
  ErrorLog Log;
  LanguageChoice Choice;
  Settings Options{Log, OwnFolder(), JetVersionOption::Version30};
  LanguageFile Texts{Log, OwnFolder(), JetVersionOption::Version30, Choice};
};

fs::path SampleSettings() {
  NobodyThere messages;
  Files files(messages);
  files.Options.CreateSettings();
  return files.Options.Path();
}

fs::path SampleTexts() {
  NobodyThere messages;
  Files files(messages);
  files.Texts.InitLanguages();
  return files.Texts.Path();
}

void UseSettings(Files& files, Steering& input) {
  ReadMapOptions(files.Options, input.Below(2) == 1);
  if (input.Below(2) == 1) files.Options.WriteSettingValue("LANG", std::string(input.Text()));
  files.Options.ReadSetting("LANG");
}

void UseTexts(Files& files, Steering& input) {
  files.Choice.Current = static_cast<Language>(input.Below(11));
  files.Texts.Text(static_cast<TextId>(input.Below(40)));
  if (input.Below(8) == 1) files.Texts.InitLanguages();
  files.Texts.SetLanguage(input.Short(), {"a", "b", "c"});
}

}  // namespace

// The input says what is wrong with the settings or with the language file, and what is done.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const HostileDatabase hostileSettings(SampleSettings());
  static const HostileDatabase hostileTexts(SampleTexts());
  Steering input(data, size);
  NobodyThere messages(input.Below(2) == 0);
  Files files(messages);
  if (input.Below(2) == 0) {
    hostileSettings.Write(files.Options.Path(), input);
    UseSettings(files, input);
  } else {
    hostileTexts.Write(files.Texts.Path(), input);
    UseTexts(files, input);
  }
  return 0;
}
