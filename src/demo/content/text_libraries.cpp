// SPDX-License-Identifier: MIT
#include "demo/content/text_libraries.h"

#include <functional>
#include <stdexcept>

namespace orrerix::demo {
namespace {

constexpr int kLastNumber = 65535;

int NextNumber(int& last) {
  if (last == kLastNumber) throw std::length_error("a resource library has no number left");
  return ++last;
}

int TextNumberOf(Library library, int number) {
  return (static_cast<int>(library) + 1) * 65536 + number;
}

}  // namespace

const std::vector<LibraryFile>& LibraryFiles() {
  static const std::vector<LibraryFile> files = {
      {Library::Names, "StarNames.dll", "names of places"},
      {Library::Cards, "StarCards.dll", "cards of places"},
      {Library::Equipment, "GearTexts.dll", "names and cards of ships, goods and equipment"},
      {Library::Misc, "MiscTexts.dll", "factions, gates and trade lanes"},
      {Library::People, "Folk.dll", "persons in bars"},
  };
  return files;
}

int TextLibraries::Name(Library library, std::string_view utf8) {
  Content& content = ContentOf(library);
  const auto known = content.KnownNames.find(utf8);
  if (known != content.KnownNames.end()) return known->second;
  const int number = NextNumber(content.LastName);
  content.Writer.AddString(static_cast<std::uint16_t>(number), utf8);
  content.KnownNames.emplace(utf8, TextNumberOf(library, number));
  return TextNumberOf(library, number);
}

int TextLibraries::Cards(Library library, const std::vector<std::string>& cards) {
  Content& content = ContentOf(library);
  const int first = content.LastCard + 1;
  for (const std::string& card : cards) {
    const int number = NextNumber(content.LastCard);
    content.Writer.AddCard(static_cast<std::uint16_t>(number), card);
  }
  return TextNumberOf(library, first);
}

int TextLibraries::SharedCard(Library library, const std::string& card) {
  const auto [place, isNew] = ContentOf(library).KnownCards.try_emplace(card, 0);
  if (isNew) place->second = Cards(library, {card});
  return place->second;
}

std::string TextLibraries::Image(Library library) const {
  return contents_[static_cast<std::size_t>(library)].Writer.Image();
}

}  // namespace orrerix::demo
