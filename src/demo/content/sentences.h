// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

// Stock sentences for cards. {name} is the thing itself, {system} its system, {owner} the short
// name of its faction, {nation} the nation with its article.
const std::vector<std::string>& StationDetails();
const std::vector<std::string>& StationClosings();
const std::vector<std::string>& PlanetDetails();
const std::vector<std::string>& PlanetClosings();
const std::vector<std::string>& WreckNames();
const std::vector<std::string>& WreckStories();
const std::vector<std::string>& FieldNames();
const std::vector<std::string>& FirstNames();
const std::vector<std::string>& FamilyNames();

}  // namespace orrerix::demo
