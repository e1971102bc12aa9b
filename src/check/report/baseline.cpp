// SPDX-License-Identifier: MIT
#include "check/report/baseline.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace orrerix::check {
namespace {

constexpr int kVersion = 1;

}  // namespace

std::vector<BaselineEntry> ParseBaseline(std::string_view text, const std::string& file) {
  try {
    const auto json = nlohmann::json::parse(text);
    if (json.at("version") != kVersion) {
      throw CannotCheck(fmt::format("the baseline '{}' is of another version", file));
    }
    const nlohmann::json& findings = json.at("findings");
    if (!findings.is_array()) throw CannotCheck(fmt::format("'{}' is no baseline", file));
    std::vector<BaselineEntry> entries;
    for (const auto& each : findings) {
      entries.push_back({each.at("fingerprint").get<std::string>(),
                         each.value("rule", std::string()), each.value("file", std::string())});
    }
    return entries;
  } catch (const nlohmann::json::exception&) {
    throw CannotCheck(fmt::format("'{}' is no baseline", file));
  }
}

std::string BaselineText(const CheckAnswer& answer) {
  nlohmann::ordered_json baseline;
  baseline["version"] = kVersion;
  baseline["findings"] = nlohmann::ordered_json::array();
  for (const Finding& finding : answer.Findings) {
    if (finding.State == FindingState::Suppressed) continue;
    baseline["findings"].push_back(
        {{"fingerprint", finding.Fingerprint}, {"rule", finding.Rule}, {"file", finding.File}});
  }
  return baseline.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
}

}  // namespace orrerix::check
