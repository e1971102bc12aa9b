// SPDX-License-Identifier: MIT
// The controls of a drawing as the command line writes them.
#pragma once

#include <nlohmann/json.hpp>

#include "cli/scene.h"
#include "info/station/price_table.h"

namespace orrerix {

// A control with the fields that its kind has; those inside a frame are left out.
nlohmann::ordered_json ControlJson(const Control& control);

// The labels of a price table: its head, then name, price and difference of each row.
nlohmann::ordered_json PriceTableJson(const PriceTable& table);

// The same as lines of text on standard output.
void PrintControl(const Control& control);
void PrintPriceTable(const PriceTable& table);

nlohmann::ordered_json SceneJson(const Scene& scene);

}  // namespace orrerix
