// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_content.h"

#include <algorithm>

#include "atlas/hardpoints.h"
#include "atlas/registry.h"
#include "atlas/row_places.h"
#include "db/engine/engine.h"
#include "forms/workbench/throw_failures.h"

namespace orrerix {
namespace {

std::vector<AtlasShip> ShipsOf(const SourceTables& tables) {
  std::vector<AtlasShip> ships;
  const SourceTable& rows = tables["Ships"];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const std::string nickname = rows.Row(i).Text("NickName");
    const std::string name = GivenName(rows.Row(i).Text("RealName"), nickname);
    std::set<std::string> types = ShipMounts(tables, nickname).Types();
    if (nickname.empty() || types.empty()) continue;
    const QString own = QString::fromStdString(nickname);
    const QString text =
        name.empty() ? own : QString("%1 (%2)").arg(QString::fromStdString(name), own);
    ships.push_back({nickname, text, std::move(types)});
  }
  std::stable_sort(ships.begin(), ships.end(), [](const AtlasShip& a, const AtlasShip& b) {
    return a.Text.compare(b.Text, Qt::CaseInsensitive) < 0;
  });
  return ships;
}

std::vector<AtlasPlace> PlacesOf(const AtlasSource& source) {
  std::vector<AtlasPlace> places;
  for (const AtlasBase& base : source.Bases.Bases()) {
    const SourceRow dock = source.Tables["Objects"].Find("dock_with", base.Nickname);
    places.push_back({dock.Text("nickname"), QString::fromStdString(base.Label())});
  }
  return places;
}

}  // namespace

AtlasContent ReadAtlas(const std::filesystem::path& universe,
                       const BackgroundTask::IsCancelled& isCancelled) {
  AtlasContent content;
  try {
    ThrowFailures sink;
    const Database data = DBEngine::OpenDatabase(sink, universe);
    const AtlasSource source(sink, data);
    for (const AtlasTable& table : AtlasTables()) {
      if (isCancelled()) return {};
      StoredTable rows = ReadAtlasTable(table, source);
      std::vector<Sellers> places = PlacesOfRows(table, rows, source);
      content.Tables.push_back({&table, std::move(rows), std::move(places)});
    }
    content.Ships = ShipsOf(source.Tables);
    content.Places = PlacesOf(source);
  } catch (const std::exception& error) {
    content = {};
    content.Error = QString::fromStdString(error.what());
  }
  return content;
}

}  // namespace orrerix
