// SPDX-License-Identifier: MIT
#include <memory>

#include <fmt/format.h>

#include "cli/json_text.h"
#include "cli/opened_universe.h"
#include "cli/scene.h"
#include "cli/scene_json.h"
#include "cli/verbs.h"
#include "info/station/station_layout.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

struct StationWords {
  std::string Nickname;
  std::string Mode = "#";
  std::optional<std::string> Layout;  // "WxH"
};

// The whole answer for one place.
struct StationAnswer {
  StationData Data;
  std::vector<std::string> Names;  // of the rows of the price table
  std::optional<StationPicture> Layout;
};

StationMode ModeOf(const StationWords& words) {
  const auto mode = static_cast<StationMode>(words.Mode.front());
  const bool prices = mode == StationMode::Prices || mode == StationMode::Trades;
  if (!prices && !words.Layout) {
    throw WrongUsage("mode '" + words.Mode + "' needs --layout");
  }
  return mode;
}

StationAnswer ReadAnswer(OpenedUniverse& universe, const StationWords& words, StationMode mode) {
  const CellNames names = GetSystemNames(universe.Data, universe.Texts);
  StationAnswer answer;
  answer.Data = ReadStation(universe.Data, names, universe.Texts, words.Nickname, mode);
  answer.Names = PriceRowNames(universe.Data, answer.Data, mode);
  if (words.Layout) {
    const Extent form = ParseExtent(*words.Layout);
    const StationTexts texts = ReadStationTexts({}, mode, universe.Texts);
    answer.Layout = LayOutStation(universe.Data, Wording{universe.Texts, {}}, FixedTextMeasure(),
                                  {answer.Data, texts, mode, form.Width, form.Height});
  }
  return answer;
}

Json ForSaleJson(const std::vector<ForSale>& items, const char* nickname) {
  Json json = Json::array();
  for (const ForSale& item : items) {
    json.push_back({{nickname, item.Nickname}, {"realname", item.RealName}});
  }
  return json;
}

Json AnswerJson(const StationAnswer& answer) {
  const StationData& data = answer.Data;
  Json json = {{"caption", data.Caption}, {"info", data.Info}, {"base", data.Base}};
  json["prices"] = Json::array();
  for (std::size_t i = 0; i < data.Prices.size(); ++i) {
    const PriceItem& item = data.Prices[i];
    json["prices"].push_back({{"group", item.Group},
                              {"good", item.Good},
                              {"name", answer.Names[i]},
                              {"price", item.Price},
                              {"difference", item.Difference}});
  }
  json["ships"] = ForSaleJson(data.Ships, "packagename");
  json["equipment"] = ForSaleJson(data.Equipment, "nickname");
  if (answer.Layout) {
    Json& controls = json["controls"] = Json::array();
    for (const Control& control : answer.Layout->Controls) controls.push_back(ControlJson(control));
    for (const PriceTable& table : answer.Layout->Prices) {
      for (Json& label : PriceTableJson(table)) controls.push_back(std::move(label));
    }
  }
  return json;
}

void PrintText(const StationAnswer& answer) {
  const StationData& data = answer.Data;
  fmt::print("{}\n{}\n", data.Caption, data.Info);
  for (std::size_t i = 0; i < data.Prices.size(); ++i) {
    const PriceItem& item = data.Prices[i];
    fmt::print("{}\t{}\t{}\t{}\n", item.Group, answer.Names[i], item.Price, item.Difference);
  }
  for (const auto* items : {&data.Ships, &data.Equipment}) {
    for (const ForSale& item : *items) fmt::print("{}\t{}\n", item.Nickname, item.RealName);
  }
  if (answer.Layout) {
    for (const Control& control : answer.Layout->Controls) PrintControl(control);
    for (const PriceTable& table : answer.Layout->Prices) PrintPriceTable(table);
  }
}

int RunStation(const CommonOptions& options, const StationWords& words) {
  const StationMode mode = ModeOf(words);
  if (words.Layout) ParseExtent(*words.Layout);
  OpenedUniverse universe(options);
  const StationAnswer answer = ReadAnswer(universe, words, mode);
  if (options.Json) {
    PrintJson(AnswerJson(answer));
  } else {
    PrintText(answer);
  }
  return kDone;
}

}  // namespace

void AddStationVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto words = std::make_shared<StationWords>();
  CLI::App* verb = app.add_subcommand("station", "What the station window shows of an object");
  verb->add_option("NICKNAME", words->Nickname, "The object's nickname")->required();
  verb->add_option("--mode", words->Mode, "The view; I, 2 and 3 need --layout")
      ->check(CLI::IsMember({"#", "$", "I", "2", "3"}));
  AddText(*verb, "--layout", words->Layout, "Outer size of the window, twips: WxH");
  verb->callback(
      [&options, &run, words] { run = [&options, words] { return RunStation(options, *words); }; });
}

}  // namespace orrerix
