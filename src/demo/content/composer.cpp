// SPDX-License-Identifier: MIT
#include "demo/content/composer.h"

#include <cstddef>

#include <fmt/core.h>

namespace orrerix::demo {

std::string Sentence(const std::string& pattern, const Subject& subject) {
  std::string text = fmt::format(
      fmt::runtime(pattern), fmt::arg("name", subject.Name), fmt::arg("system", subject.System),
      fmt::arg("owner", subject.Owner), fmt::arg("nation", subject.Nation));
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 32);
  return text;
}

std::vector<std::string> PickSentences(const std::vector<std::string>& patterns, int count,
                                       Random& random) {
  std::vector<std::string> picked;
  int wanted = count;
  int left = static_cast<int>(patterns.size());
  for (const std::string& pattern : patterns) {
    // Each pattern is taken with the chance that fills the rest evenly.
    if (wanted > 0 && random.Between(1, left) <= wanted) {
      picked.push_back(pattern);
      --wanted;
    }
    --left;
  }
  return picked;
}

std::string Paragraph(const std::vector<std::string>& patterns, const Subject& subject) {
  std::string text;
  for (const std::string& pattern : patterns) {
    if (!text.empty()) text += ' ';
    text += Sentence(pattern, subject);
  }
  return text;
}

}  // namespace orrerix::demo
