// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <initializer_list>
#include <vector>

#include "forms/layers/map_space.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// What the map shows besides: a switch for each layer, with what it looks like.
class LayersPage : public WorkbenchPage {
 public:
  // Both outlive the page.
  LayersPage(MapSpace& space, const LanguageChoice& choice);

  void Enter() override;
  void UniverseChanged() override;

  // What has been read is another universe.
  void ShowContent();

 private:
  QString Caption(TextId id) const;
  QWidget* MakeGroup(TextId title, std::initializer_list<Layer> layers);
  QWidget* MakeLegend();
  void Toggle(Layer layer, bool shown);
  void AllOff();
  void ShowFactions();

  struct Switch {
    Layer Of;
    QCheckBox* Box;
  };

  MapSpace& space_;
  const LanguageChoice& choice_;
  std::vector<Switch> switches_;
  QLabel* sums_;
  QListWidget* factions_;
};

}  // namespace orrerix
