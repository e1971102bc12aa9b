// SPDX-License-Identifier: MIT
#include "platform/native_registry.h"

#include "platform/windows/windows_registry.h"

namespace orrerix {

std::unique_ptr<Registry> NativeRegistry() {
  return std::make_unique<WindowsRegistry>();
}

}  // namespace orrerix
