// SPDX-License-Identifier: MIT
#include "platform/linux/wine_registry.h"

#include <string>

#include "support.h"

// The input is a hive; its first line is looked up as a path, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix;
  const std::string text(InputText(data, size));
  WriteBytes(OwnFolder() / "system.reg", text);
  const WineRegistry registry(OwnFolder());
  registry.Query(RegistryHive::LocalMachine, "Software\\Game", "AppPath");
  registry.RealPath(text.substr(0, text.find('\n')));
  return 0;
}
