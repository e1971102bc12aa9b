// SPDX-License-Identifier: MIT
#include "map/panel/map_options.h"

#include <fmt/format.h>

#include "db/values/number_text.h"

namespace orrerix {

MapOptions MapOptions::Defaults(bool zoomed) {
  return {{zoomed, zoomed, true, true, true, true}};
}

std::string SettingKey(bool zoomed, int which) {
  return fmt::format("SET{}-{}", zoomed ? 2 : 1, which);
}

bool IsOn(std::string_view text) {
  return Val(text) > 0;
}

}  // namespace orrerix
