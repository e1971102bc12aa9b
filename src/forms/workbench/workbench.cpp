// SPDX-License-Identifier: MIT
#include "forms/workbench/workbench.h"

#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/program_style.h"
#include "forms/workbench/setting_keys.h"
#include "picture/application_icon.h"

namespace orrerix {
namespace {

constexpr QSize kFirstSize{1400, 780};
constexpr int kWorkbenchListWidth = 150;
// The style's own boxes do not show on the dark background while they are empty.
constexpr const char* kWorkbenchStyle =
    "QCheckBox::indicator, QListView::indicator { width: 15px; height: 15px;"
    " image: url(:/pictures/tools/check_off.png); }"
    "QCheckBox::indicator:checked, QListView::indicator:checked {"
    " image: url(:/pictures/tools/check_on.png); }";

}  // namespace

Workbench::Workbench(QSettings& settings, const LanguageChoice& choice)
    : settings_(settings),
      choice_(choice),
      list_(new QListWidget(this)),
      stack_(new QStackedWidget(this)) {
  setObjectName("Workbench");
  setWindowTitle(CaptionIn(choice.Current, TextId::Tools));
  setWindowIcon(ApplicationIcon());
  list_->setObjectName("PageList");
  list_->setAccessibleName(CaptionIn(choice.Current, TextId::Tools));
  stack_->setObjectName("PageStack");
  list_->setFixedWidth(kWorkbenchListWidth);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(list_);
  layout->addWidget(stack_, 1);
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { Choose(row); });
  ColorPanels(settings_.value(setting_key::kLightPanels, false).toBool());
  resize(kFirstSize.boundedTo(screen()->availableSize()));
  restoreGeometry(settings_.value(setting_key::kGeometry).toByteArray());
}

Workbench::~Workbench() {
  LeavePage();
}

void Workbench::Add(std::unique_ptr<WorkbenchPage> page) {
  list_->addItem(CaptionIn(choice_.Current, page->Name()));
  pages_.push_back(page.get());
  stack_->addWidget(page.release());
}

void Workbench::Open() {
  const int last = settings_.value(setting_key::kPage, 0).toInt();
  const int count = static_cast<int>(pages_.size());
  const int chosen = list_->currentRow();
  Bring(chosen < 0 && count > 0 ? std::clamp(last, 0, count - 1) : chosen);
}

// A page that was in front when the window was closed comes back to it.
void Workbench::Bring(int row) {
  const bool comesBack = row == list_->currentRow() && !isVisible() && front_ != nullptr;
  list_->setCurrentRow(row);
  if (comesBack) front_->Enter();
  show();
  raise();
  activateWindow();
}

void Workbench::Open(TextId page) {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (pages_[i]->Name() == page) return Bring(static_cast<int>(i));
  }
  Open();
}

void Workbench::Choose(int row) {
  if (row < 0) return;
  LeavePage();
  stack_->setCurrentIndex(row);
  front_ = pages_[static_cast<std::size_t>(row)];
  front_->Enter();
}

void Workbench::LeavePage() {
  if (front_ != nullptr) front_->Leave();
}

void Workbench::UniverseChanged() {
  for (WorkbenchPage* page : pages_) page->UniverseChanged();
}

void Workbench::ShowKeys() {
  auto* keys = new QMessageBox(QMessageBox::NoIcon, CaptionIn(choice_.Current, TextId::KeysTitle),
                               CaptionIn(choice_.Current, TextId::KeysText), QMessageBox::Close,
                               isVisible() ? this : nullptr);
  keys->setObjectName("Keys");
  keys->setTextFormat(Qt::PlainText);
  keys->setAttribute(Qt::WA_DeleteOnClose);
  keys->button(QMessageBox::Close)->setText(CaptionIn(choice_.Current, TextId::ButtonClose));
  keys->open();
}

void Workbench::UseLightPanels(bool on) {
  settings_.setValue(setting_key::kLightPanels, on);
  ColorPanels(on);
}

void Workbench::ColorPanels(bool light) {
  setStyleSheet(light ? QString() : QString(kWorkbenchStyle));
  setPalette(light ? LightPanels() : DarkPanels());
}

void Workbench::closeEvent(QCloseEvent* event) {
  settings_.setValue(setting_key::kGeometry, saveGeometry());
  settings_.setValue(setting_key::kPage, list_->currentRow());
  LeavePage();
  QWidget::closeEvent(event);
}

void Workbench::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) return ShowKeys();
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace orrerix
