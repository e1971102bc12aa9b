// SPDX-License-Identifier: MIT
#pragma once

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace orrerix {

// Writes one JSON document to standard output. Bytes that are no UTF-8 are replaced.
template <typename Json>
void PrintJson(const Json& json) {
  fmt::print("{}\n", json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace));
}

}  // namespace orrerix
