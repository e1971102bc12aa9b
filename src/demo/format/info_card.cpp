// SPDX-License-Identifier: MIT
#include "demo/format/info_card.h"

#include <fmt/core.h>

namespace orrerix::demo {
namespace {

constexpr std::string_view Prolog = "<?xml version=\"1.0\" encoding=\"UTF-16\"?><RDL><PUSH/>";
constexpr std::string_view Epilog = "<POP/></RDL>";
constexpr std::string_view Bold = "<TRA data=\"1\" mask=\"1\" def=\"-2\"/>";
constexpr std::string_view Plain = "<TRA data=\"0\" mask=\"1\" def=\"-1\"/>";
constexpr std::string_view Centred = "<JUST loc=\"center\"/>";
constexpr std::string_view FromLeft = "<JUST loc=\"left\"/>";

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
  std::string card(Prolog);
  if (!headline.empty()) {
    card += fmt::format("{}{}<TEXT>{}</TEXT><PARA/>{}{}", Bold, Centred, Escaped(headline), Plain,
                        FromLeft);
  } else {
    card += fmt::format("{}{}", Plain, FromLeft);
  }
  for (const std::string& paragraph : paragraphs) {
    card += fmt::format("<TEXT>{}</TEXT><PARA/>", Escaped(paragraph));
  }
  return card.append(Epilog);
}

std::string FactCard(std::string_view headline, const std::vector<Fact>& facts) {
  std::vector<std::string> lines;
  for (const Fact& fact : facts) lines.push_back(fmt::format("{}: {}", fact.Label, fact.Value));
  return InfoCard(headline, lines);
}

}  // namespace orrerix::demo
