// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

#include "forms/workbench/atlas/atlas_content.h"
#include "forms/workbench/workbench_host.h"
#include "shell/text_id.h"

namespace orrerix {

// What the game says of the chosen row of the atlas, and its places, which the map shows.
class AtlasDetails : public QWidget {
 public:
  // Both outlive this.
  AtlasDetails(WorkbenchHost& host, const LanguageChoice& choice);

  // Called with what a player should know: a place that the map does not have.
  std::function<void(const QString&)> OnState;

  void Show(const AtlasContent& content, const AtlasContent::Table& table, std::size_t row);
  void Clear();

 private:
  QString TextOf(const AtlasContent::Table& table, std::size_t row);
  QString InfoText(const std::string& table, const std::string& nickname);
  void ShowOnMap();

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  QPlainTextEdit* text_;
  QListWidget* places_;
  QPushButton* show_;
};

}  // namespace orrerix
