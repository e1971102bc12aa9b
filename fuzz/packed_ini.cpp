// SPDX-License-Identifier: MIT
#include "import/ini/packed_ini.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orrerix::UnpackIni({reinterpret_cast<const char*>(data), size});
  return 0;
}
