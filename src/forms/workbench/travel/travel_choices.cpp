// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/travel_choices.h"

#include <algorithm>
#include <set>

#include "db/engine/working_copy.h"
#include "db/values/text.h"
#include "forms/workbench/throw_failures.h"
#include "routes/table_rows.h"
#include "routes/travel_graph.h"

namespace orrerix {
namespace {

// Names repeat, nicknames do not.
QString TextOf(const std::string& name, const std::string& nickname) {
  const QString own = QString::fromStdString(nickname);
  return name.empty() ? own : QString("%1 (%2)").arg(QString::fromStdString(name), own);
}

// The rows of a table that name something, the first of each nickname.
std::vector<TravelChoice> NamedIn(Database& universe, std::string_view table, std::string_view name,
                                  std::string_view needed) {
  ThrowFailures sink;
  std::vector<TravelChoice> choices;
  std::set<std::string> seen;
  for (TableRows rows(sink, universe, table); !rows.AtEnd(); rows.MoveNext()) {
    const std::string nickname = rows.Text("NickName");
    if (nickname.empty() || rows.IsEmpty(needed) || !seen.insert(FoldAscii(nickname)).second) {
      continue;
    }
    choices.push_back({nickname, TextOf(rows.Text(name), nickname)});
  }
  return choices;
}

std::vector<TravelChoice> PlacesOf(Database& universe) {
  ThrowFailures sink;
  const TravelGraph graph = ReadTravelGraph(sink, universe);
  std::vector<TravelChoice> places;
  for (const TravelSystem& system : graph.Systems) {
    places.push_back({system.Nickname, TextOf(system.Name, system.Nickname)});
  }
  for (const TravelObject& object : graph.Objects) {
    if (!object.IsDock) continue;
    const TravelSystem& system = graph.Systems[object.System];
    const std::string& where = system.Name.empty() ? system.Nickname : system.Name;
    const std::string name = object.Name.empty() ? where : object.Name + ", " + where;
    places.push_back({object.Nickname, TextOf(name, object.Nickname)});
  }
  return places;
}

void Sort(std::vector<TravelChoice>& choices) {
  std::stable_sort(choices.begin(), choices.end(),
                   [](const TravelChoice& a, const TravelChoice& b) {
                     return a.Text.compare(b.Text, Qt::CaseInsensitive) < 0;
                   });
}

}  // namespace

TravelChoices ReadTravelChoices(const std::filesystem::path& universe) {
  TravelChoices choices;
  try {
    ThrowFailures sink;
    WorkingCopy copy;
    Database& data = copy.Of(sink, universe);
    choices.Ships = NamedIn(data, "Ships", "RealName", "packagename");
    choices.Factions = NamedIn(data, "Groups", "Name", "NickName");
    choices.Places = PlacesOf(data);
  } catch (const std::exception&) {
    return {};
  } catch (const Failure&) {
    return {};
  }
  for (auto* list : {&choices.Ships, &choices.Factions, &choices.Places}) Sort(*list);
  return choices;
}

}  // namespace orrerix
