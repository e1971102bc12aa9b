// SPDX-License-Identifier: MIT
#include "check/rules/text_numbers.h"

#include <fmt/format.h>

#include "check/model/numbers.h"
#include "check/rules/card_markup.h"
#include "import/resources/resource_library.h"

namespace orrerix::check {

void TextNumberRules::CheckLine(const TextNumberPlace& place, const IniSection& section,
                                const IniEntry& entry, Findings& findings) {
  const std::string_view value = entry.At(place.ValueNumber);
  const auto number = ParseTextNumber(value);
  if (!number || *number == 0) return;
  const std::uint32_t library = *number >> 16;
  if (library > texts_.Count() && texts_.Count() > 0) {
    findings.Add(Rule::TextLibrary, AtEntry(section, entry),
                 fmt::format("there is no library {} of {}: {}", library, texts_.Count(), value));
    return;
  }
  if (texts_.Of(*number) == nullptr) return;
  if (!place.IsCard) {
    if (texts_.HasString(*number)) return;
    findings.Add(Rule::TextMissing, AtEntry(section, entry),
                 fmt::format("there is no text of this number: {}", value));
    return;
  }
  const auto card = texts_.Card(*number);
  if (!card) {
    if (texts_.HasString(*number)) return;
    findings.Add(Rule::CardMissing, AtEntry(section, entry),
                 fmt::format("there is no info card of this number: {}", value));
  } else if (!IsSoundCard(*number, *card)) {
    findings.Add(Rule::CardMalformed, AtEntry(section, entry),
                 fmt::format("the markup of the info card is broken: {}", value));
  }
}

bool TextNumberRules::IsSoundCard(std::uint32_t number, std::string_view raw) {
  const auto [known, isNew] = isSound_.try_emplace(number, true);
  if (isNew) known->second = IsWellFormedCard(FromUtf16(raw));
  return known->second;
}

}  // namespace orrerix::check
