// SPDX-License-Identifier: MIT
#include "platform/linux/wine_registry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

// A prefix of this process's own, made once.
const fs::path& Prefix() {
  static const fs::path prefix = [] {
    std::string pattern = (fs::temp_directory_path() / "orrerix-fuzz-XXXXXX").string();
    return fs::path(mkdtemp(pattern.data()));
  }();
  return prefix;
}

}  // namespace

// The input is a hive; its first line is looked up as a path, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::ofstream(Prefix() / "system.reg", std::ios::binary) << text;
  const orrerix::WineRegistry registry(Prefix());
  registry.Query(orrerix::RegistryHive::LocalMachine, "Software\\Game", "AppPath");
  registry.RealPath(text.substr(0, text.find('\n')));
  return 0;
}
