// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "demo/plan/random.h"

namespace orrerix::demo {

// What the places of a stock sentence are filled with.
struct Subject {
  std::string Name;
  std::string System;
  std::string Owner;
  std::string Nation;
};

// The sentence with {name}, {system}, {owner} and {nation} filled in and a capital at its start.
std::string Sentence(const std::string& pattern, const Subject& subject);

// `count` different sentences of a list, in the list's order; all of them if it has no more.
std::vector<std::string> PickSentences(const std::vector<std::string>& patterns, int count,
                                       Random& random);

// Sentences joined to one paragraph.
std::string Paragraph(const std::vector<std::string>& patterns, const Subject& subject);

}  // namespace orrerix::demo
