// SPDX-License-Identifier: MIT
#include "check/fingerprints.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>

#include "check/sha256.h"
#include "db/values/text.h"

namespace orrerix::check {
namespace {

constexpr std::size_t kDigits = 16;

bool IsBefore(const Finding& a, const Finding& b) {
  const auto place = [](const Finding& finding) {
    return std::tie(finding.File, finding.Line, finding.Rule, finding.Key);
  };
  if (place(a) != place(b)) return place(a) < place(b);
  const std::string valueOfA = Lcase(a.Value);
  const std::string valueOfB = Lcase(b.Value);
  return std::tie(valueOfA, a.Message) < std::tie(valueOfB, b.Message);
}

// What findings that are alike have in common.
std::string Likeness(const Finding& finding) {
  std::string text = finding.Rule;
  for (const std::string* part :
       {&finding.File, &finding.Section, &finding.Nickname, &finding.Key, &finding.Value}) {
    text += '\n';
    text += Lcase(*part);
  }
  return text;
}

}  // namespace

std::vector<Finding> InOrderWithFingerprints(std::vector<Finding> findings) {
  std::stable_sort(findings.begin(), findings.end(), IsBefore);
  std::map<std::string, int> counts;
  for (Finding& finding : findings) {
    const std::string text = Likeness(finding);
    const int n = ++counts[text];
    finding.Fingerprint = Sha256Hex(text + '\n' + std::to_string(n)).substr(0, kDigits);
  }
  return findings;
}

}  // namespace orrerix::check
