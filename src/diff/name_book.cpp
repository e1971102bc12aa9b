// SPDX-License-Identifier: MIT
#include "diff/name_book.h"

#include <algorithm>
#include <array>
#include <optional>

#include "db/values/text.h"

namespace orrerix {
namespace {

// Tables whose names players see come before the parts that those are made of.
constexpr std::array<std::string_view, 8> kFirst = {
    "Systems", "base", "Groups", "Ships", "Goods", "commodity", "DockObjects", "Objects"};

const StoredTable* Find(const std::vector<StoredTable>& universe, std::string_view name) {
  const auto found = std::find_if(
      universe.begin(), universe.end(),
      [name](const StoredTable& table) { return EqualIgnoringCase(table.Definition.Name, name); });
  return found == universe.end() ? nullptr : &*found;
}

std::optional<std::size_t> FindOneOf(const TableDef& table,
                                     std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    if (const auto column = table.Find(name)) return column;
  }
  return std::nullopt;
}

// Where no name is known an import puts a text such as "gun_01(0)" or "0 - 0" in its place.
bool IsStandIn(std::string_view name, std::string_view nickname) {
  if (name.empty() || name == nickname) return true;
  if (name.starts_with("0 - 0") || name.starts_with('(')) return true;
  return name.ends_with(')') && name.size() > nickname.size() &&
         EqualIgnoringCase(name.substr(0, nickname.size()), nickname) &&
         name[nickname.size()] == '(';
}

}  // namespace

class NameBook::Reader {
 public:
  Reader(NameBook& book, const std::vector<StoredTable>& universe)
      : names_(book.names_), universe_(universe) {
    const StoredTable* texts = Find(universe, "ids_name");
    if (texts == nullptr) return;
    const auto number = texts->Definition.Find("ID");
    const auto name = texts->Definition.Find("Name");
    if (!number || !name) return;
    for (std::size_t row = 0; row < texts->RowCount(); ++row) {
      texts_.emplace(texts->Row(row)[*number].Text(), texts->Row(row)[*name].Text());
    }
  }

  void ReadAll() {
    for (const std::string_view name : kFirst) {
      if (const StoredTable* table = Find(universe_, name)) Read(*table, {"nickname"});
    }
    if (const StoredTable* ships = Find(universe_, "Ships")) Read(*ships, {"packagename"});
    if (const StoredTable* objects = Find(universe_, "Objects")) Read(*objects, {"dock_with"});
    for (const StoredTable& table : universe_) Read(table, {"nickname"});
  }

 private:
  void Read(const StoredTable& table, std::initializer_list<std::string_view> nicknames) {
    const auto nickname = FindOneOf(table.Definition, nicknames);
    const auto name = FindOneOf(table.Definition, {"realname", "name"});
    const auto number = FindOneOf(table.Definition, {"ids_name", "strid_name"});
    if (!nickname || (!name && !number)) return;
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
      const auto cells = table.Row(row);
      Add(cells[*nickname].Text(), name ? cells[*name].Text() : TextOf(cells[*number]));
    }
  }

  std::string TextOf(const Value& number) const {
    const auto found = texts_.find(number.Text());
    return found == texts_.end() ? std::string() : found->second;
  }

  void Add(const std::string& nickname, std::string name) {
    if (nickname.empty() || IsStandIn(name, nickname)) return;
    names_.emplace(FoldAscii(nickname), std::move(name));
  }

  std::unordered_map<std::string, std::string>& names_;
  const std::vector<StoredTable>& universe_;
  std::unordered_map<std::string, std::string> texts_;  // by their numbers
};

void NameBook::Learn(const std::vector<StoredTable>& universe) {
  Reader(*this, universe).ReadAll();
}

std::string_view NameBook::NameOf(std::string_view nickname) const {
  const auto found = names_.find(FoldAscii(nickname));
  return found == names_.end() ? std::string_view() : found->second;
}

}  // namespace orrerix
