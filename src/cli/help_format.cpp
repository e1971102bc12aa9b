// SPDX-License-Identifier: MIT
#include "cli/help_format.h"

#include <vector>

#include <fmt/format.h>

namespace orrerix {
namespace {

constexpr std::size_t kLineLength = 96;
constexpr std::string_view kIndent = "       ";

std::string ArgumentText(const CLI::Option& option) {
  std::string text = option.get_positional() ? option.get_name(true) : option.get_name();
  const std::string type = option.get_type_name();
  if (!option.get_positional() && !type.empty()) {
    // The values of a choice say enough by themselves.
    text += " " + type.substr(type.find('{') == std::string::npos ? 0 : type.find('{'));
  }
  if (!option.get_required()) text = "[" + text + "]";
  const bool isRepeated = option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll &&
                          !option.get_positional();
  return isRepeated ? text + "..." : text;
}

// The arguments of a verb: first those that stand for themselves, then what is needed.
std::vector<std::string> Arguments(const CLI::App& verb) {
  const auto rank = [](const CLI::Option& option) {
    if (option.get_positional()) return 0;
    return option.get_required() ? 1 : 2;
  };
  std::vector<std::string> texts;
  for (int wanted = 0; wanted <= 2; ++wanted) {
    for (const CLI::Option* option : verb.get_options()) {
      if (option == verb.get_help_ptr() || rank(*option) != wanted) continue;
      texts.push_back(ArgumentText(*option));
    }
  }
  return texts;
}

std::string Wrapped(const std::string& start, const std::vector<std::string>& words) {
  std::string text = start;
  std::size_t length = text.size();
  for (const std::string& word : words) {
    if (length + 1 + word.size() > kLineLength) {
      text += fmt::format("\n{}", kIndent);
      length = kIndent.size();
    }
    text += " " + word;
    length += 1 + word.size();
  }
  return text;
}

}  // namespace

std::string HelpFormat::make_usage(const CLI::App* app, std::string) const {
  if (app->get_parent() == nullptr) return Formatter::make_usage(app, "orrerix-cli");
  const std::vector<std::string> arguments = Arguments(*app);
  std::string usage = Wrapped("Usage: orrerix-cli " + app->get_name(), arguments) + "\n";
  if (!arguments.empty())
    usage += "Arguments in [brackets] may be left out, all others are needed.\n";
  return usage;
}

std::string HelpFormat::make_footer(const CLI::App* app) const {
  if (app->get_parent() == nullptr) {
    return "\n'orrerix-cli VERB --help' says what a verb needs and what it can do.\n";
  }
  const std::string own = app->get_footer();
  return fmt::format(
      "{}\nEvery verb also takes [--database FILE] [--language en|de|fr] [--on-failure ok|cancel]\n"
      "[--json].\n",
      own.empty()
          ? "Needs a universe file (--database; by default the one in the save folder), which\n"
            "'import' makes."
          : own);
}

}  // namespace orrerix
