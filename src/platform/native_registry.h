// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/registry.h"

namespace orrerix {

// The registry of this machine and user.
std::unique_ptr<Registry> NativeRegistry();

}  // namespace orrerix
