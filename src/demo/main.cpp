// SPDX-License-Identifier: MIT
#include <cstdio>
#include <exception>
#include <string>

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include "demo/demo_game.h"
#include "platform/console.h"
#include "platform/path_text.h"

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct Request {
  std::string Folder;
  int Systems = orrerix::DefaultDemoSystems;
};

void Describe(CLI::App& app, Request& request) {
  app.add_option("DIR", request.Folder, "Folder to write: new, empty, or an earlier demo game")
      ->required();
  app.add_option("--systems", request.Systems, "Number of star systems")
      ->check(CLI::Range(orrerix::demo::FewestSystems, orrerix::demo::MostSystems))
      ->capture_default_str();
  app.set_version_flag("--version", "orrerix-demo " ORRERIX_VERSION);
}

int Write(const Request& request) {
  try {
    orrerix::WriteDemoGame(orrerix::PathOf(request.Folder), request.Systems);
  } catch (const std::exception& error) {
    fmt::print(stderr, "orrerix-demo: {}\n", error.what());
    return kFailed;
  }
  fmt::print("Wrote a game of {} systems to {}\n", request.Systems, request.Folder);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app(
      "Writes a made-up game with everything that Orrerix reads, for demonstrations and tests.",
      "orrerix-demo");
  orrerix::UseUtf8Output();
  const orrerix::ProgramArguments arguments(argc, argv);
  Request request;
  try {
    Describe(app, request);
    app.parse(arguments.Count(), arguments.Texts());
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : kWrongUsage;
  }
  return Write(request);
}
