// SPDX-License-Identifier: MIT
#include "atlas/places.h"

#include <cmath>

#include <fmt/format.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kRingName = "Dockring: ";
constexpr double kSectors = 8;

// The game's sector of a point, from its fractions of the system's square: column A to H from the
// left, row 1 to 8 from the top. The map's frame shifts both by a part of a sector.
std::string SectorOf(const SourceRow& dock) {
  const Figure x = dock.Number("PosX");
  const Figure y = dock.Number("PosY");
  if (!x || !y) return {};
  const double column = std::floor(kSectors * *x - 0.35);
  const double row = std::floor(kSectors * *y - 0.5);
  const auto isInside = [](double sector) { return sector >= 0 && sector < kSectors; };
  if (!isInside(column) || !isInside(row)) return {};
  return {static_cast<char>('A' + static_cast<int>(column)),
          static_cast<char>('1' + static_cast<int>(row))};
}

bool LetsNobodyIn(const SourceRow& object) {
  return Contains(FoldAscii(object.Text("archetype")), "nodock");
}

std::string BaseName(const SourceTables& tables, const SourceRow& object,
                     const std::string& nickname) {
  const SourceRow base = tables["base"].Find("nickname", nickname);
  if (std::string name = tables.NameOf(base.Number("strid_name")); !name.empty()) return name;
  std::string name = GivenName(object.Text("realname"), object.Text("nickname"));
  if (name.starts_with(kRingName)) name.erase(0, kRingName.size());
  return name.empty() ? nickname : name;
}

std::string NameOr(std::string name, std::string_view nickname) {
  if (name.empty()) name = nickname;
  return name;
}

}  // namespace

std::string AtlasBase::Label() const {
  return fmt::format("{} ({})", Name, SystemName);
}

BaseBook::BaseBook(const SourceTables& tables) {
  const SourceTable& objects = tables["Objects"];
  for (std::size_t i = 0; i < objects.RowCount(); ++i) {
    const SourceRow object = objects.Row(i);
    const std::string nickname = object.Text("dock_with");
    const SourceRow dock = tables["DockObjects"].Find("nickname", object.Text("nickname"));
    if (nickname.empty() || !dock.Exists() || LetsNobodyIn(object)) continue;
    const auto [place, isNew] = byNickname_.try_emplace(FoldAscii(nickname), bases_.size());
    if (isNew) {
      AtlasBase base;
      base.Nickname = nickname;
      base.Name = BaseName(tables, object, nickname);
      base.System = object.Text("sys_nick");
      base.SystemName = SystemNameOf(tables, base.System);
      base.Sector = SectorOf(dock);
      base.Owner = object.Text("reputation");
      base.OwnerName = FactionNameOf(tables, base.Owner);
      bases_.push_back(std::move(base));
    }
    ++bases_[place->second].Docks;
    byDock_.try_emplace(FoldAscii(object.Text("nickname")), place->second);
  }
}

std::optional<std::size_t> BaseBook::Find(std::string_view base) const {
  const auto found = byNickname_.find(FoldAscii(Trim(base)));
  return found == byNickname_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> BaseBook::FindByDock(std::string_view object) const {
  const auto found = byDock_.find(FoldAscii(Trim(object)));
  return found == byDock_.end() ? std::nullopt : std::optional(found->second);
}

std::string SystemNameOf(const SourceTables& tables, std::string_view nickname) {
  const std::string name = tables["Systems"].Find("nickname", nickname).Text("realname");
  return NameOr(GivenName(name, nickname), nickname);
}

std::string FactionNameOf(const SourceTables& tables, std::string_view nickname) {
  const std::string name = tables["Groups"].Find("nickname", nickname).Text("Name");
  return NameOr(GivenName(name, {}), nickname);
}

}  // namespace orrerix
