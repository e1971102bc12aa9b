// SPDX-License-Identifier: MIT
#pragma once

#include "picture/map_scene.h"
#include "platform/printer.h"

namespace orrerix {

// The failure number of a printer that does not do its work.
inline constexpr int kPrinterError = 482;

// Prints what a scene shows on one page, as large as the page's proportions allow, never larger
// than on the screen of 96 pixels an inch. Throws a Failure if there is nothing to print on.
void PrintForm(MapScene& scene, const std::optional<PrintTarget>& target);

}  // namespace orrerix
