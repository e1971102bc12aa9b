// SPDX-License-Identifier: MIT
#include "demo/format/info_card.h"

#include <fmt/core.h>

namespace orrerix::demo {
namespace {

constexpr std::string_view kProlog = "<?xml version=\"1.0\" encoding=\"UTF-16\"?><RDL><PUSH/>";
constexpr std::string_view kEpilog = "<POP/></RDL>";
constexpr std::string_view kBold = "<TRA data=\"1\" mask=\"1\" def=\"-2\"/>";
constexpr std::string_view kPlain = "<TRA data=\"0\" mask=\"1\" def=\"-1\"/>";
constexpr std::string_view kCentred = "<JUST loc=\"center\"/>";
constexpr std::string_view kFromLeft = "<JUST loc=\"left\"/>";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char letter : text) {
    if (letter == '&') {
      escaped += "&amp;";
    } else if (letter == '<') {
      escaped += "&lt;";
    } else if (letter == '>') {
      escaped += "&gt;";
    } else {
      escaped += letter;
    }
  }
  return escaped;
}

}  // namespace

std::string InfoCard(std::string_view headline, const std::vector<std::string>& paragraphs) {
  std::string card(kProlog);
  if (!headline.empty()) {
    card += fmt::format("{}{}<TEXT>{}</TEXT><PARA/>{}{}", kBold, kCentred, Escaped(headline),
                        kPlain, kFromLeft);
  } else {
    card += fmt::format("{}{}", kPlain, kFromLeft);
  }
  for (const std::string& paragraph : paragraphs) {
    card += fmt::format("<TEXT>{}</TEXT><PARA/>", Escaped(paragraph));
  }
  return card.append(kEpilog);
}

std::string FactCard(std::string_view headline, const std::vector<Fact>& facts) {
  std::vector<std::string> lines;
  lines.reserve(facts.size());
  for (const Fact& fact : facts) lines.push_back(fmt::format("{}: {}", fact.Label, fact.Value));
  return InfoCard(headline, lines);
}

}  // namespace orrerix::demo
