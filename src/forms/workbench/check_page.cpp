// SPDX-License-Identifier: MIT
#include "forms/workbench/check_page.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "check/report/reports.h"
#include "check/rules/rule.h"
#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/program_style.h"
#include "picture/form_font.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

using check::Finding;
using check::Severity;

constexpr int kWatchInterval = 200;  // milliseconds
constexpr int kCheckPageFont = 9;
constexpr int kProgressWidth = 120;
constexpr int kPlaceWidth = 330;
constexpr int kMessageWidth = 380;

}  // namespace

CheckPage::CheckPage(WorkbenchHost& host, const LanguageChoice& choice, OpenFile open)
    : WorkbenchPage(TextId::ModCheck),
      host_(host),
      choice_(choice),
      open_(std::move(open)),
      findings_(choice),
      filter_(findings_) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeBar());
  layout->addWidget(MakeFilterBar());
  auto* split = new QSplitter(Qt::Vertical, this);
  tree_ = new QTreeView(split);
  tree_->setObjectName("Findings");
  tree_->setAccessibleName(Caption(TextId::ModCheck));
  tree_->setModel(&filter_);
  tree_->setUniformRowHeights(true);
  tree_->setSortingEnabled(true);
  tree_->sortByColumn(FindingModel::PlaceColumn, Qt::AscendingOrder);
  tree_->header()->resizeSection(FindingModel::PlaceColumn, kPlaceWidth);
  tree_->header()->resizeSection(FindingModel::MessageColumn, kMessageWidth);
  explanation_ = new QPlainTextEdit(split);
  explanation_->setObjectName("Explanation");
  explanation_->setReadOnly(true);
  explanation_->setFont(FormFont(kCheckPageFont));
  split->setStretchFactor(0, 4);
  split->setStretchFactor(1, 1);
  layout->addWidget(split, 1);
  layout->addWidget(MakeButtons());
  connect(tree_, &QTreeView::doubleClicked, this, [this] { OpenChosen(); });
  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { ShowExplanation(); });
  watchTimer_.setInterval(kWatchInterval);
  connect(&watchTimer_, &QTimer::timeout, this, [this] {
    if (watch_ && watch_->TakeRound(std::chrono::steady_clock::now())) Check();
  });
}

void CheckPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) findings_.StandOn(IsLight(palette()));
  WorkbenchPage::changeEvent(event);
}

QString CheckPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QWidget* CheckPage::MakeBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  check_ = new QPushButton(Caption(TextId::CheckNow), bar);
  check_->setObjectName("Check");
  cancel_ = new QPushButton(Caption(TextId::ButtonCancel), bar);
  cancel_->setObjectName("Cancel");
  cancel_->setEnabled(false);
  again_ = new QCheckBox(Caption(TextId::CheckOnSave), bar);
  again_->setObjectName("CheckOnSave");
  state_ = new PlainLabel(bar);
  state_->setObjectName("State");
  row->addWidget(check_);
  row->addWidget(cancel_);
  row->addWidget(again_);
  progress_ = new QProgressBar(bar);
  progress_->setObjectName("Progress");
  progress_->setAccessibleName(Caption(TextId::Checking));
  progress_->setRange(0, 0);  // its end is not known
  progress_->setFixedWidth(kProgressWidth);
  progress_->setTextVisible(false);
  progress_->hide();
  row->addWidget(state_, 1);
  row->addWidget(progress_);
  connect(check_, &QPushButton::clicked, this, [this] { Check(); });
  connect(cancel_, &QPushButton::clicked, this, [this] {
    task_.Cancel();
    ShowRunning(false);
    ShowSums();
  });
  connect(again_, &QCheckBox::toggled, this, [this](bool on) { Watch(on); });
  return bar;
}

QWidget* CheckPage::MakeFilterBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  auto* grouping = new QComboBox(bar);
  grouping->setObjectName("Grouping");
  grouping->addItems({Caption(TextId::GroupByRule), Caption(TextId::GroupByFile)});
  connect(grouping, &QComboBox::currentIndexChanged, this, [this](int chosen) {
    findings_.GroupBy(chosen == 0 ? FindingModel::Grouping::ByRule
                                  : FindingModel::Grouping::ByFile);
  });
  row->addWidget(grouping);
  const std::pair<Severity, TextId> severities[] = {{Severity::Error, TextId::Errors},
                                                    {Severity::Warning, TextId::Warnings},
                                                    {Severity::Note, TextId::Notes}};
  for (const auto& [severity, name] : severities) {
    auto* box = new QCheckBox(Caption(name), bar);
    box->setChecked(true);
    connect(box, &QCheckBox::toggled, this,
            [this, severity = severity](bool on) { filter_.Want(severity, on); });
    row->addWidget(box);
  }
  auto* text = new QLineEdit(bar);
  text->setObjectName("Filter");
  text->setPlaceholderText(Caption(TextId::FilterText));
  text->setAccessibleName(Caption(TextId::FilterText));
  text->setClearButtonEnabled(true);
  connect(text, &QLineEdit::textChanged, this, [this](const QString& t) { filter_.WantText(t); });
  row->addWidget(text, 1);
  return bar;
}

QWidget* CheckPage::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](TextId name, const char* object, void (CheckPage::*act)()) {
    auto* button = new QPushButton(Caption(name), bar);
    button->setObjectName(object);
    connect(button, &QPushButton::clicked, this, [this, act] { (this->*act)(); });
    row->addWidget(button);
    return button;
  };
  add(TextId::OpenFile, "OpenFile", &CheckPage::OpenChosen);
  onMap_ = add(TextId::ShowOnMap, "ShowOnMap", &CheckPage::ShowChosenOnMap);
  add(TextId::Copy, "Copy", &CheckPage::CopyChosen);
  add(TextId::Export, "Export", &CheckPage::Export);
  row->addStretch(1);
  return bar;
}

void CheckPage::Enter() {
  if (game_ != host_.GameText()) Check();
}

void CheckPage::UniverseChanged() {
  if (again_->isChecked()) Watch(true);
  if (isVisible()) Enter();
}

void CheckPage::Check() {
  game_ = host_.GameText();
  ShowRunning(true);
  state_->setText(Caption(TextId::Checking));
  task_.Start(
      [game = game_](const BackgroundTask::IsCancelled& isCancelled) {
        Outcome outcome;
        check::CheckOptions options;
        options.Game = PathOf(game);
        try {
          outcome.Answer = check::RunCheck(options, [&](std::size_t) { return !isCancelled(); });
        } catch (const std::exception& error) {
          outcome.Error = error.what();
        }
        return outcome;
      },
      [this](Outcome outcome) { ShowOutcome(std::move(outcome)); });
}

void CheckPage::ShowRunning(bool running) {
  cancel_->setEnabled(running);
  progress_->setVisible(running);
}

void CheckPage::ShowOutcome(Outcome outcome) {
  ShowRunning(false);
  answer_ = std::move(outcome.Answer);
  findings_.Show(answer_.Findings);
  if (outcome.Error.empty()) {
    ShowSums();
  } else {
    state_->setText(QString::fromStdString(outcome.Error));
  }
  ShowExplanation();
}

void CheckPage::ShowSums() {
  state_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CheckSums, answer_.Count(Severity::Error),
               answer_.Count(Severity::Warning), answer_.Count(Severity::Note))));
}

const Finding* CheckPage::Chosen() const {
  return findings_.FindingAt(filter_.mapToSource(tree_->currentIndex()));
}

void CheckPage::ShowExplanation() {
  const Finding* finding = Chosen();
  onMap_->setEnabled(finding != nullptr && !finding->Nickname.empty());
  if (finding == nullptr) return explanation_->clear();
  const auto rule = check::FindRule(finding->Rule);
  std::string text = finding->Message + "\n";
  for (const check::FilePlace& place : finding->Related) {
    text += fmt::format("  {}:{}\n", place.File, place.Line);
  }
  if (rule) text += "\n" + check::ExplainRule(*rule);
  explanation_->setPlainText(QString::fromStdString(text));
}

void CheckPage::OpenChosen() {
  if (const Finding* finding = Chosen())
    open_(PathOf(game_) / PathOf(finding->File), finding->Line);
}

void CheckPage::ShowChosenOnMap() {
  const Finding* finding = Chosen();
  if (finding == nullptr || host_.ShowOnMap(finding->Nickname)) return;
  state_->setText(
      QString::fromStdString(FormatIn(choice_.Current, TextId::NotOnMap, finding->Nickname)));
}

void CheckPage::CopyChosen() {
  const Finding* finding = Chosen();
  if (finding == nullptr) return;
  QApplication::clipboard()->setText(QString::fromStdString(
      fmt::format("{}:{}: {}: {} [{}]", finding->File, finding->Line,
                  check::SeverityName(finding->Severity), finding->Message, finding->Rule)));
}

// The kind of the report follows the name that the user gives its file.
void CheckPage::Export() {
  const QString name = QFileDialog::getSaveFileName(this, Caption(TextId::Export), "check.txt",
                                                    "Text (*.txt);;JSON (*.json);;SARIF (*.sarif)");
  if (name.isEmpty()) return;
  const check::CheckedFolders folders{game_, std::nullopt};
  const std::string report = name.endsWith(".json")    ? check::JsonReport(answer_, folders)
                             : name.endsWith(".sarif") ? check::SarifReport(answer_, folders)
                                                       : check::TextReport(answer_, folders, false);
  QFile file(name);
  const auto size = static_cast<qint64>(report.size());
  if (!file.open(QIODevice::WriteOnly) || file.write(report.data(), size) != size) {
    state_->setText(QString::fromStdString(
        FormatIn(choice_.Current, TextId::CannotWriteFile, name.toStdString())));
  }
}

void CheckPage::Watch(bool on) {
  watch_.reset();
  if (on) watch_ = std::make_unique<GameFilesWatch>(PathOf(host_.GameText()));
  on ? watchTimer_.start() : watchTimer_.stop();
}

}  // namespace orrerix
