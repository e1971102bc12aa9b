// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/way_search.h"

#include "db/engine/working_copy.h"
#include "forms/controls/captions.h"
#include "forms/workbench/throw_failures.h"
#include "forms/workbench/travel/trade_search.h"

namespace orrerix {
namespace {

TextId NameOf(JumpObstacle obstacle) {
  switch (obstacle) {
    case JumpObstacle::Avoided:
      return TextId::ObstacleAvoided;
    case JumpObstacle::NoGates:
      return TextId::NoGates;
    case JumpObstacle::NoHoles:
      return TextId::NoHoles;
    case JumpObstacle::Locked:
      return TextId::ObstacleLocked;
    case JumpObstacle::Missing:
      break;
  }
  return TextId::ObstacleMissing;
}

// A wish as the page calls it.
std::string TextOf(Language language, const WishItem& item) {
  const TextId name = item.Option == "no-gates"        ? TextId::NoGates
                      : item.Option == "no-holes"      ? TextId::NoHoles
                      : item.Option == "no-locked"     ? TextId::NoLocked
                      : item.Option == "avoid-faction" ? TextId::EnemyFactions
                                                       : TextId::KeepAwayFrom;
  const std::string text(TextIn(language, name));
  return item.Value ? text + " " + *item.Value : text;
}

QString TextOf(Language language, const TravelGraph& graph, const WhyNoWay& why) {
  std::string text;
  for (const WishItem& item : why.Items) {
    text += FormatIn(language, TextId::WayWithout, TextOf(language, item)) + "\n";
  }
  if (why.AllTogether && why.Items.empty()) {
    text += std::string(TextIn(language, TextId::WayWithoutAll)) + "\n";
  }
  for (const BlockedJump& jump : why.Blocked) {
    const TravelObject& object = graph.Objects[jump.Object];
    text += FormatIn(language, TextId::BlockedJump, object.Nickname,
                     graph.Systems[object.System].Nickname, jump.Goto,
                     TextIn(language, NameOf(jump.Because))) +
            "\n";
  }
  if (why.Nearest) {
    text += FormatIn(language, TextId::NearestSystem, graph.Systems[why.Nearest->System].Nickname) +
            "\n";
  }
  return QString::fromStdString(text);
}

QString SumsOf(Language language, const Travel& travel, const Way& way) {
  const auto name = [&](NodeIndex node) {
    const TravelObject& object = travel.Graph.Objects[node];
    return object.Name.empty() ? object.Nickname : object.Name;
  };
  return QString::fromStdString(FormatIn(language, TextId::WaySums, name(way.From), name(way.To),
                                         MinutesText(way.Time()).toStdString(),
                                         NumberText(language, way.Distance()).toStdString(),
                                         way.Jumps()));
}

WayOutcome FindIn(const std::filesystem::path& universe, const TravelRequest& request,
                  const std::string& from, const std::string& to, Language language) {
  ThrowFailures sink;
  WorkingCopy copy;
  const Travel travel = ReadTravel(sink, copy.Of(sink, universe), request);
  const TravelPlace start = RequirePlace(travel.Graph, from);
  const TravelPlace end = RequirePlace(travel.Graph, to);
  const auto way = FastestWay(travel.Graph, travel.Model, travel.Limits, start, end);
  if (way) return {RowsOf(travel, *way), SumsOf(language, travel, *way), {}};
  const WhyNoWay why =
      ExplainNoWay(travel.Graph, travel.Model, travel.Wishes, travel.Locked, start, end);
  return {{},
          QString::fromStdString(FormatIn(language, TextId::NoWay, from, to)),
          TextOf(language, travel.Graph, why)};
}

}  // namespace

WayOutcome SearchWay(const std::filesystem::path& universe, const TravelRequest& request,
                     const std::string& from, const std::string& to, Language language) {
  try {
    return FindIn(universe, request, from, to, language);
  } catch (...) {
    return {{}, ErrorText(language, std::current_exception()), {}};
  }
}

}  // namespace orrerix
