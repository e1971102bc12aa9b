// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "atlas/registry.h"
#include "db/values/text.h"
#include "space/find_book.h"

namespace orrerix {
namespace {

class FindBookReader {
 public:
  FindBookReader(const AtlasSource& source, const Space& space) : source_(source), space_(space) {
    for (const SystemArea& system : space.Systems) {
      systems_.try_emplace(KeyOf(system.Cell), system.Name);
    }
    ReadInfoTexts();
  }

  void AddSpace() {
    for (const SystemArea& system : space_.Systems) {
      AddPlaced(FoundKind::System, system.Name, system.Nickname, system.Cell, "Systems");
    }
    for (const Spot& spot : space_.Spots) {
      AddPlaced(FoundKind::Place, spot.Name, spot.Nickname, spot.Cell, "Objects");
    }
    for (const Body& body : space_.Bodies) {
      AddPlaced(FoundKind::Body, body.Name, body.Nickname, body.Cell, "Objects");
    }
    for (const Gate& gate : space_.Gates) {
      AddPlaced(FoundKind::Gate, gate.Name, gate.Nickname, gate.Cell, "Objects");
    }
    for (const Zone& zone : space_.Zones) {
      if (!zone.Name.empty()) {
        AddPlaced(FoundKind::Zone, zone.Name, zone.Nickname, zone.Cell, "zone");
      }
    }
  }

  void AddTable(const AtlasTable& table) {
    const std::string id = table.Id;
    if (id == "bases" || id == "systems" || id == "bribes") return;
    const StoredTable rows = ReadAtlasTable(table, source_);
    const auto name = table.Find("name");
    const auto nickname = table.Find("nickname");
    if (!name || !nickname) return;
    for (std::size_t i = 0; i < rows.RowCount(); ++i) {
      FoundThing thing;
      thing.Kind = KindOf(id);
      thing.Name = rows.Row(i)[*name].Text();
      thing.Nickname = rows.Row(i)[*nickname].Text();
      thing.AtlasTable = id;
      if (thing.Name.empty()) continue;
      for (const char* section : {"Ships", "commodity", "Groups", "Goods"}) {
        if (thing.InfoText.empty()) thing.InfoText = InfoTextOf(section, thing.Nickname);
      }
      things_.push_back(std::move(thing));
    }
  }

  std::vector<FoundThing> Take() { return std::move(things_); }

 private:
  static int KeyOf(MapCell cell) { return cell.X * 100 + cell.Y; }

  static FoundKind KindOf(const std::string& table) {
    if (table == "ships") return FoundKind::Ship;
    if (table == "commodities") return FoundKind::Commodity;
    if (table == "factions") return FoundKind::Faction;
    return FoundKind::Equipment;
  }

  void ReadInfoTexts() {
    const SourceTable& rows = source_.Tables["ids_info"];
    for (std::size_t i = 0; i < rows.RowCount(); ++i) {
      const Figure number = rows.Row(i).Number("ID");
      if (number) infos_.try_emplace(static_cast<std::int64_t>(*number), i);
    }
  }

  // In one line, as it stands in a list.
  std::string InfoTextOf(const char* table, const std::string& nickname) const {
    const SourceRow row = source_.Tables[table].Find("nickname", nickname);
    const Figure number = row.Number("ids_info");
    const auto found = infos_.find(static_cast<std::int64_t>(number.value_or(0)));
    if (!number || found == infos_.end()) return {};
    std::string text = source_.Tables["ids_info"].Row(found->second).Text("Info");
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return text;
  }

  void AddPlaced(FoundKind kind, const std::string& name, const std::string& nickname, MapCell cell,
                 const char* table) {
    const auto system = systems_.find(KeyOf(cell));
    things_.push_back({kind, name.empty() ? nickname : name, nickname,
                       system == systems_.end() ? std::string() : system->second, cell,
                       kind == FoundKind::System ? "systems" : "", InfoTextOf(table, nickname)});
  }

  const AtlasSource& source_;
  const Space& space_;
  std::unordered_map<int, std::string> systems_;         // names by cell
  std::unordered_map<std::int64_t, std::size_t> infos_;  // rows of ids_info
  std::vector<FoundThing> things_;
};

}  // namespace

FindBook ReadFindBook(const AtlasSource& source, const Space& space,
                      const std::function<bool()>& isCancelled) {
  FindBookReader reader(source, space);
  reader.AddSpace();
  for (const AtlasTable& table : AtlasTables()) {
    if (isCancelled()) return {};
    reader.AddTable(table);
  }
  return FindBook(reader.Take());
}

}  // namespace orrerix
