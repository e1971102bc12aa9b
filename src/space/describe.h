// SPDX-License-Identifier: MIT
// What the map says about a point of a system.
#pragma once

#include <string>

#include "shell/text_id.h"
#include "space/layers.h"
#include "space/space.h"

namespace orrerix {

// Some lines on what the chosen layers show at a point: bodies, gates, wrecks and platforms within
// `reach` (fraction of the square), then the zones there, the smallest first. The last line is the
// sector. Empty where nothing is.
std::string DescribePoint(const Space& space, const LayerChoice& layers, Language language,
                          MapCell cell, CellFraction point, double reach);

// The name of a layer in a language.
std::string_view LayerCaption(Language language, Layer layer);

}  // namespace orrerix
