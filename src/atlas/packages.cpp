// SPDX-License-Identifier: MIT
#include "atlas/packages.h"

#include <algorithm>

#include "db/values/text.h"

namespace orrerix {
namespace {

bool IsOf(const SourceRow& good, std::string_view category) {
  return EqualIgnoringCase(good.Text("category"), category);
}

}  // namespace

std::vector<std::string> PackagesOf(const SourceTables& tables, const SourceRow& ship) {
  std::vector<std::string> packages;
  const auto add = [&](const std::string& package) {
    const bool isKnown =
        std::any_of(packages.begin(), packages.end(),
                    [&](const std::string& known) { return EqualIgnoringCase(known, package); });
    if (!package.empty() && !isKnown) packages.push_back(package);
  };
  add(ship.Text("packagename"));
  const SourceTable& goods = tables["Goods"];
  for (const SourceRow& hull : goods.FindAll("ship", ship.Text("NickName"))) {
    if (!IsOf(hull, "shiphull")) continue;
    for (const SourceRow& package : goods.FindAll("hull", hull.Text("nickname"))) {
      if (IsOf(package, "ship")) add(package.Text("nickname"));
    }
  }
  return packages;
}

SourceRow ShipOfPackage(const SourceTables& tables, const SourceRow& package) {
  for (const SourceRow& hull : tables["Goods"].FindAll("nickname", package.Text("hull"))) {
    if (!IsOf(hull, "shiphull")) continue;
    const SourceRow ship = tables["Ships"].Find("NickName", hull.Text("ship"));
    if (ship.Exists()) return ship;
  }
  return tables["Ships"].Find("packagename", package.Text("nickname"));
}

std::string ShipName(const SourceRow& ship) {
  std::string name = GivenName(ship.Text("RealName"), ship.Text("NickName"));
  return name.empty() ? ship.Text("NickName") : name;
}

}  // namespace orrerix
