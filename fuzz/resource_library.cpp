// SPDX-License-Identifier: MIT
#include "import/resources/resource_library.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "import/resources/info_card.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto library = orrerix::ResourceLibrary::Open({reinterpret_cast<const char*>(data), size});
  if (!library) return 0;
  for (const auto& [number, text] : library->Strings()) orrerix::CleanEnd(text);
  for (const auto& [number, card] : library->Cards()) {
    const std::string text = orrerix::FromUtf16(card);
    orrerix::InfoCardToText(orrerix::CleanEnd(text));
  }
  return 0;
}
