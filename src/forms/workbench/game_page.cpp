// SPDX-License-Identifier: MIT
#include "forms/workbench/game_page.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/interface_scale.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kMostRecent = 10;

}  // namespace

GamePage::GamePage(WorkbenchHost& host, QSettings& settings, const LanguageChoice& choice)
    : WorkbenchPage(TextId::GamePage), host_(host), settings_(settings), choice_(choice) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  game_ = new PlainLabel(this);
  game_->setObjectName("GameShown");
  file_ = new PlainLabel(this);
  for (QLabel* label : {game_, file_}) label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* again = new QPushButton(Caption(TextId::ImportAgain), this);
  again->setObjectName("ImportAgain");
  auto* watch = new QCheckBox(Caption(TextId::WatchGame), this);
  watch->setObjectName("WatchGame");
  watch->setChecked(settings.value(setting_key::kWatch, false).toBool());
  state_ = new PlainLabel(this);
  state_->setObjectName("ImportState");
  state_->setWordWrap(true);
  auto* other = new QPushButton(Caption(TextId::OpenOtherGame), this);
  other->setObjectName("OpenOtherGame");
  recent_ = new QListWidget(this);
  recent_->setObjectName("RecentGames");
  recent_->setAccessibleName(Caption(TextId::RecentGames));
  auto* open = new QPushButton(Caption(TextId::OpenThisGame), this);
  auto* editor = new QLineEdit(settings.value(setting_key::kEditor).toString(), this);
  editor->setObjectName("EditorCommand");
  editor->setPlaceholderText("code -g {file}:{line}");
  editor->setAccessibleName(Caption(TextId::EditorCommand));
  auto* scale = new QComboBox(this);
  scale->setObjectName("InterfaceScale");
  scale->setAccessibleName(Caption(TextId::InterfaceScale));
  for (const int percent : InterfaceScales()) {
    scale->addItem(QString("%1 %").arg(percent), percent);
  }
  scale->setCurrentIndex(scale->findData(StoredScale(settings)));
  layout->addWidget(game_);
  layout->addWidget(file_);
  layout->addWidget(again, 0, Qt::AlignLeft);
  layout->addWidget(watch);
  layout->addWidget(state_);
  layout->addSpacing(16);
  layout->addWidget(other, 0, Qt::AlignLeft);
  layout->addWidget(new PlainLabel(Caption(TextId::RecentGames), this));
  layout->addWidget(recent_, 1);
  layout->addWidget(open, 0, Qt::AlignLeft);
  layout->addSpacing(16);
  layout->addWidget(new PlainLabel(Caption(TextId::EditorCommand), this));
  layout->addWidget(editor);
  layout->addSpacing(16);
  layout->addWidget(new PlainLabel(Caption(TextId::InterfaceScale), this));
  layout->addWidget(scale, 0, Qt::AlignLeft);
  auto* light = new QCheckBox(Caption(TextId::LightPanels), this);
  light->setObjectName("LightPanels");
  light->setChecked(settings.value(setting_key::kLightPanels, false).toBool());
  layout->addWidget(light);
  connect(light, &QCheckBox::toggled, this, [this](bool on) {
    if (OnLightPanels) OnLightPanels(on);
  });
  connect(scale, &QComboBox::currentIndexChanged, this,
          [this, scale] { StoreScale(settings_, scale->currentData().toInt()); });
  connect(again, &QPushButton::clicked, this, [this] { host_.ImportAgain(); });
  connect(watch, &QCheckBox::toggled, this, [this](bool on) {
    settings_.setValue(setting_key::kWatch, on);
    host_.WatchGame(on);
  });
  connect(other, &QPushButton::clicked, this, [this] { OpenOther(); });
  connect(open, &QPushButton::clicked, this, [this] { OpenRecent(); });
  connect(recent_, &QListWidget::itemActivated, this, [this] { OpenRecent(); });
  connect(editor, &QLineEdit::textChanged, this,
          [this](const QString& command) { settings_.setValue(setting_key::kEditor, command); });
}

QString GamePage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

void GamePage::Enter() {
  UniverseChanged();
}

void GamePage::UniverseChanged() {
  const std::string game = host_.GameText();
  game_->setText(QString::fromStdString(FormatIn(choice_.Current, TextId::GameShown, game)));
  file_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::GameFile, host_.UniverseFile().string())));
  Remember(QString::fromStdString(game));
}

void GamePage::ShowState(const QString& text) {
  state_->setText(text);
}

// The one that is shown stands at the top.
void GamePage::Remember(const QString& folder) {
  QStringList games = settings_.value(setting_key::kRecentGames).toStringList();
  games.removeAll(folder);
  if (!folder.isEmpty()) games.prepend(folder);
  while (games.size() > kMostRecent) games.removeLast();
  settings_.setValue(setting_key::kRecentGames, games);
  recent_->clear();
  recent_->addItems(games);
}

void GamePage::OpenOther() {
  const QString folder = QFileDialog::getExistingDirectory(
      this, Caption(TextId::OpenOtherGame), QString::fromStdString(host_.GameText()));
  if (!folder.isEmpty()) host_.OpenGame(folder.toStdString());
}

void GamePage::OpenRecent() {
  if (const QListWidgetItem* item = recent_->currentItem()) {
    host_.OpenGame(item->text().toStdString());
  }
}

}  // namespace orrerix
