// SPDX-License-Identifier: MIT
#include "import/resources/info_card.h"

#include "check/rules/card_markup.h"
#include "import/resources/resource_library.h"
#include "support.h"

// The input is a card in UTF-8, and the bytes of one in UTF-16.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix;
  const std::string_view card = InputText(data, size);
  InfoCardToText(CleanEnd(card));
  check::IsWellFormedCard(card);
  InfoCardToText(CleanEnd(FromUtf16(card)));
  return 0;
}
