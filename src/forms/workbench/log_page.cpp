// SPDX-License-Identifier: MIT
#include "forms/workbench/log_page.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "picture/form_font.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

constexpr int kLogPageFont = 9;
constexpr int kKindWidth = 160;
constexpr int kFileWidth = 300;
constexpr int kNicknameWidth = 160;

}  // namespace

LogPage::LogPage(WorkbenchHost& host, const LanguageChoice& choice, OpenFile open)
    : WorkbenchPage(TextId::LogPage),
      host_(host),
      choice_(choice),
      open_(std::move(open)),
      model_(choice) {
  filter_.setSourceModel(&model_);
  filter_.setFilterKeyColumn(-1);
  filter_.setFilterCaseSensitivity(Qt::CaseInsensitive);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeBar());
  auto* split = new QSplitter(Qt::Vertical, this);
  table_ = new QTableView(split);
  table_->setObjectName("LogTable");
  table_->setAccessibleName(CaptionIn(choice.Current, TextId::LogPage));
  table_->setModel(&filter_);
  table_->setSortingEnabled(true);
  table_->sortByColumn(-1, Qt::AscendingOrder);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setColumnWidth(LogModel::KindColumn, kKindWidth);
  table_->setColumnWidth(LogModel::FileColumn, kFileWidth);
  table_->setColumnWidth(LogModel::NicknameColumn, kNicknameWidth);
  entry_ = new QPlainTextEdit(split);
  entry_->setObjectName("LogEntry");
  entry_->setReadOnly(true);
  entry_->setFont(FixedFont(kLogPageFont));
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 1);
  layout->addWidget(split, 1);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { ShowChosen(); });
  connect(table_, &QTableView::doubleClicked, this, [this] { OpenChosen(); });
}

QWidget* LogPage::MakeBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  auto* text = new QLineEdit(bar);
  text->setObjectName("Filter");
  text->setPlaceholderText(CaptionIn(choice_.Current, TextId::FindInLog));
  text->setAccessibleName(CaptionIn(choice_.Current, TextId::FindInLog));
  text->setClearButtonEnabled(true);
  connect(text, &QLineEdit::textChanged, this,
          [this](const QString& wanted) { filter_.setFilterFixedString(wanted); });
  row->addWidget(text, 1);
  sums_ = new PlainLabel(bar);
  row->addWidget(sums_);
  openFile_ = new QPushButton(CaptionIn(choice_.Current, TextId::OpenFile), bar);
  openFile_->setObjectName("OpenFile");
  connect(openFile_, &QPushButton::clicked, this, [this] { OpenChosen(); });
  row->addWidget(openFile_);
  auto* copy = new QPushButton(CaptionIn(choice_.Current, TextId::Copy), bar);
  auto* save = new QPushButton(CaptionIn(choice_.Current, TextId::SaveLog), bar);
  connect(copy, &QPushButton::clicked, this, [this] { Copy(); });
  connect(save, &QPushButton::clicked, this, [this] { Save(); });
  row->addWidget(copy);
  row->addWidget(save);
  return bar;
}

void LogPage::Enter() {
  Read();
}

void LogPage::UniverseChanged() {
  Read();
}

void LogPage::Read() {
  entries_ = ReadSavedLog(host_.UniverseFile());
  std::vector<LogEntry> parsed;
  for (const std::string& entry : entries_) parsed.push_back(ParseLogEntry(entry));
  std::vector<check::LogPlace> places = check::PlacesOfLog(PathOf(host_.GameText()), parsed);
  model_.Show(std::move(parsed), std::move(places));
  sums_->setText(
      QString::fromStdString(FormatIn(choice_.Current, TextId::LogSums, entries_.size())));
  if (!entries_.empty()) table_->setCurrentIndex(filter_.index(0, 0));
  ShowChosen();
}

void LogPage::OpenChosen() {
  const check::LogPlace place = model_.PlaceAt(filter_.mapToSource(table_->currentIndex()));
  if (!place.File.empty()) open_(PathOf(host_.GameText()) / PathOf(place.File), place.Line);
}

void LogPage::ShowChosen() {
  const QModelIndex chosen = filter_.mapToSource(table_->currentIndex());
  const LogEntry* entry = model_.EntryAt(chosen);
  openFile_->setEnabled(!model_.PlaceAt(chosen).File.empty());
  entry_->setPlainText(entry == nullptr ? QString()
                                        : QString::fromStdString(entry->Text).remove('\r'));
}

void LogPage::Copy() {
  QApplication::clipboard()->setText(entry_->toPlainText());
}

void LogPage::Save() {
  const QString caption = CaptionIn(choice_.Current, TextId::SaveLog);
  const QString name = QFileDialog::getSaveFileName(this, caption, "Orrerix.log");
  if (name.isEmpty()) return;
  QFile file(name);
  bool isSaved = file.open(QIODevice::WriteOnly);
  for (const std::string& entry : entries_) {
    const QByteArray line = QString::fromStdString(entry).remove('\r').toUtf8() + '\n';
    isSaved = isSaved && file.write(line) == line.size();
  }
  if (isSaved) return;
  sums_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CannotWriteFile, name.toStdString())));
}

}  // namespace orrerix
