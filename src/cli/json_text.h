// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace orrerix {

// Writes one JSON document to standard output. Bytes that are no UTF-8 are replaced.
template <typename Json>
void PrintJson(const Json& json) {
  fmt::print("{}\n", json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace));
}

// Adds a member that the object does not have yet. By index an ordered object looks through all its
// keys, of which there may be thousands.
template <typename Value>
void AppendMember(nlohmann::ordered_json::object_t& object, const std::string& name,
                  Value&& value) {
  using Members = std::vector<nlohmann::ordered_json::object_t::value_type>;
  static_cast<Members&>(object).emplace_back(name, std::forward<Value>(value));
}

}  // namespace orrerix
