// SPDX-License-Identifier: MIT
#include "platform/native_registry.h"

#include "platform/linux/wine_registry.h"

namespace orrerix {

std::unique_ptr<Registry> NativeRegistry() {
  return std::make_unique<WineRegistry>(WineRegistry::DefaultPrefix());
}

}  // namespace orrerix
