// SPDX-License-Identifier: MIT
#include <filesystem>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "check/report/reports.h"
#include "check/rules/rule.h"
#include "platform/path_text.h"
#include "shell/version.h"

namespace orrerix::check {
namespace fs = std::filesystem;
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/os/schemas/sarif-schema-2.1.0.json";
constexpr const char* kFingerprintName = "orrerix/v1";

bool IsPlainInUri(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~' || c == '/';
}

std::string PercentEncoded(std::string_view path) {
  std::string uri;
  for (const char c : path) {
    uri += IsPlainInUri(c)
               ? std::string(1, c)
               : fmt::format("%{:02X}", static_cast<unsigned>(static_cast<unsigned char>(c)));
  }
  return uri;
}

std::string FolderUri(const std::string& folder) {
  std::error_code error;
  std::string path = fs::absolute(PathOf(folder), error).lexically_normal().generic_string();
  if (!path.starts_with('/')) path.insert(0, "/");
  if (!path.ends_with('/')) path += '/';
  // The colon of a drive stays: "file:///C:/games/".
  const std::size_t drive = path.size() > 2 && path[2] == ':' ? 3 : 0;
  return "file://" + path.substr(0, drive) + PercentEncoded(path.substr(drive));
}

const char* BaseIdOf(Layer layer) {
  return layer == Layer::Game ? "GAME" : "BASE";
}

Json RulesJson() {
  Json rules = Json::array();
  for (const RuleInfo& rule : AllRules()) {
    rules.push_back({{"id", rule.Id},
                     {"shortDescription", {{"text", rule.Title}}},
                     {"fullDescription", {{"text", rule.Explanation}}},
                     {"defaultConfiguration", {{"level", SeverityName(rule.Severity)}}}});
  }
  return rules;
}

Json PhysicalLocation(const std::string& file, int line, Layer layer) {
  return {{"artifactLocation", {{"uri", PercentEncoded(file)}, {"uriBaseId", BaseIdOf(layer)}}},
          {"region", {{"startLine", line}}}};
}

Json LocationJson(const Finding& finding) {
  Json location = {
      {"physicalLocation", PhysicalLocation(finding.File, finding.Line, finding.Layer)}};
  if (!finding.Section.empty() || !finding.Nickname.empty() || !finding.Key.empty()) {
    location["logicalLocations"] = Json::array(
        {{{"fullyQualifiedName", finding.Section + '/' + finding.Nickname + '/' + finding.Key}}});
  }
  return location;
}

Json ResultJson(const Finding& finding) {
  Json result = {{"ruleId", finding.Rule},
                 {"level", SeverityName(finding.Severity)},
                 {"message", {{"text", finding.Message}}},
                 {"locations", Json::array({LocationJson(finding)})}};
  if (!finding.Related.empty()) {
    Json& related = result["relatedLocations"] = Json::array();
    for (const FilePlace& place : finding.Related) {
      related.push_back(
          {{"physicalLocation", PhysicalLocation(place.File, place.Line, place.Layer)}});
    }
  }
  result["partialFingerprints"] = {{kFingerprintName, finding.Fingerprint}};
  if (finding.State != FindingState::Counted) {
    const bool isInSource = finding.State == FindingState::Suppressed;
    result["suppressions"] = Json::array({{{"kind", isInSource ? "inSource" : "external"}}});
  }
  return result;
}

}  // namespace

std::string SarifReport(const CheckAnswer& answer, const CheckedFolders& folders) {
  Json run;
  run["tool"]["driver"] = {
      {"name", "orrerix-cli"}, {"version", CurrentVersion().Text()}, {"rules", RulesJson()}};
  run["originalUriBaseIds"]["GAME"]["uri"] = FolderUri(folders.Game);
  if (folders.Base) run["originalUriBaseIds"]["BASE"]["uri"] = FolderUri(*folders.Base);
  run["results"] = Json::array();
  for (const Finding& finding : answer.Findings) run["results"].push_back(ResultJson(finding));
  const Json report = {{"$schema", kSchema}, {"version", "2.1.0"}, {"runs", Json::array({run})}};
  return report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace orrerix::check
