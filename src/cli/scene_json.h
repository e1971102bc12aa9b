// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include "cli/scene.h"

namespace orrerix {

// A control with the fields that its kind has; those inside a frame are not told.
nlohmann::ordered_json ControlJson(const Control& control);

nlohmann::ordered_json SceneJson(const Scene& scene);

}  // namespace orrerix
