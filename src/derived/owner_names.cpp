// SPDX-License-Identifier: MIT
#include "derived/owner_names.h"

#include "db/values/text.h"
#include "import/resources/resource_strings.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// The three lookups are alike but for their messages, the number that they read and the text of it.
template <typename TextOf>
std::string LookUp(Universe& universe, std::string_view source, std::string_view what,
                   std::string_view preset, std::string_view field, std::string_view nickname,
                   TextOf textOf) {
  std::string text;
  Routine routine(universe.Log, source,
                  "While getting " + std::string(what) + " for " + std::string(nickname));
  routine.Run([&] {
    Recordset group = universe.DB.OpenRecordset(
        routine, "SELECT * from Groups WHERE ucase(NickName) = '{}'", {Ucase(nickname)});
    text = std::string(preset) + std::string(nickname);
    if (group.AtEnd()) return;
    routine.Try([&] { text = textOf(group[field].RequireLong()); });
  });
  return text;
}

}  // namespace

void CalcOwnerNames(Universe& universe) {
  Routine routine(universe.Log, "OrrerixMain.CalcOwnerNames", "While Calculating OwnerNames");
  routine.Run([&] {
    for (Recordset groups = universe.DB.OpenRows(routine, "Groups"); !groups.AtEnd();
         groups.MoveNext()) {
      groups.Edit();
      groups["Name"] = [&] { return GetName(universe, groups["ids_name"].RequireLong(), ""); };
      groups["SName"] = [&] {
        return GetName(universe, groups["ids_short_name"].RequireLong(), "");
      };
      groups.Update();
    }
  });
}

std::string GetOwnerName(Universe& universe, std::string_view nickname) {
  return LookUp(universe, "OrrerixMain.GetOwnerName", "OwnerName", "Name-ID: ", "ids_name",
                nickname, [&](std::int32_t number) { return GetName(universe, number, ""); });
}

std::string GetOwnerShortName(Universe& universe, std::string_view nickname) {
  return LookUp(universe, "OrrerixMain.GetOwnerShortName", "OwnerShortName",
                "Short-Name-ID: ", "ids_short_name", nickname,
                [&](std::int32_t number) { return GetName(universe, number, ""); });
}

std::string GetOwnerInfo(Universe& universe, std::string_view nickname) {
  return LookUp(universe, "OrrerixMain.GetOwnerInfo", "OwnerInfo", "Info-ID: ", "ids_info",
                nickname, [&](std::int32_t number) { return GetChangeInfo(universe, number); });
}

}  // namespace orrerix
