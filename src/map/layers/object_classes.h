// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace orrerix {

// Name of the picture of an object with this loadout, by the texts found in it (case counts; a
// later text in the table wins); "Unbekannt" where none is found.
std::string_view ObjectPicture(std::string_view loadout);

}  // namespace orrerix
