// SPDX-License-Identifier: MIT
// The verbs of the command line, each with its own options. A verb's Run answers on standard
// output and gives the exit code.
#pragma once

#include <functional>
#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/options.h"
#include "info/texts/info_text.h"
#include "map/drawing_list.h"

namespace orrerix {

// Answers with one text: as it is, or as {"text": ...}.
void AnswerText(const CommonOptions& options, const std::string& text);

// The names of the kinds of info texts.
const std::map<std::string, InfoType>& InfoKinds();

// Each of these adds a verb to the command line; `run` is set to it when its word is parsed.
using Verb = std::function<int()>;
void AddCheckVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddAtlasVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddImportVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddTableVerbs(CLI::App& app, const CommonOptions& options, Verb& run);
void AddRelationsVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddDiffVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddWatchVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddSceneVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddTextVerbs(CLI::App& app, const CommonOptions& options, Verb& run);
void AddHoverVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddSearchVerbs(CLI::App& app, const CommonOptions& options, Verb& run);
void AddInfoVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddStationVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddTradeVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddTravelTimesVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddWayVerb(CLI::App& app, const CommonOptions& options, Verb& run);
void AddRenderVerb(CLI::App& app, const CommonOptions& options, Verb& run);

}  // namespace orrerix
