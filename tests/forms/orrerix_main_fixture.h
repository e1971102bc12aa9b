// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

#include "demo/demo_game.h"
#include "form_fixture.h"
#include "forms/orrerix_main.h"

namespace orrerix {

// The main form with a game of its own.
class OrrerixMainTest : public FormFixture {
 protected:
  void WriteGame() { WriteDemoGame(*paths.Game, 12); }

  void Load() {
    form.emplace(parts, settings, language, startMemory, JetVersionOption::Version30);
    form->OnClosed = [this] { ++unloads; };
    form->Load();
    form->ShowMaximised();
  }

  std::size_t SystemLabels() {
    const ControlList& controls = form->Map().Drawing().Controls;
    return static_cast<std::size_t>(
        std::count_if(controls.begin(), controls.end(),
                      [](const Control& control) { return control.Id == ControlId::SystemLabel; }));
  }
  bool ShowsMap() { return form->Map().Frame().isVisible(); }
  bool HasTableVersion() {
    IgnoreFailures ignore;
    return DBEngine::OpenDatabase(ignore, UniverseFile()).HasTable("Version");
  }

  const MemoryStatus startMemory = GlobalMemoryStatus();
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  LanguageChoice choice;
  LanguageFile language{log, folder.Path(), JetVersionOption::Version30, choice};
  std::optional<OrrerixMain> form;
  int unloads = 0;
};

}  // namespace orrerix
