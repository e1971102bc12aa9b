// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace orrerix {

// How help texts look: the usage line of a verb names all its arguments, those that may be left out
// in brackets.
class HelpFormat : public CLI::Formatter {
 public:
  std::string make_usage(const CLI::App* app, std::string name) const override;
  std::string make_footer(const CLI::App* app) const override;
};

}  // namespace orrerix
