// SPDX-License-Identifier: MIT
#include "forms/workbench/bookmarks_page.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

constexpr int kNameColumn = 0;
constexpr int kNoteColumn = 1;
constexpr int kBookmarkNameWidth = 320;

}  // namespace

BookmarksPage::BookmarksPage(const LanguageChoice& choice, std::filesystem::path file,
                             Actions actions)
    : WorkbenchPage(TextId::BookmarksPage),
      choice_(choice),
      file_(std::move(file)),
      actions_(std::move(actions)),
      bookmarks_(LoadBookmarks(file_).value_or(Bookmarks())),
      rows_(new QTableWidget(0, 2, this)),
      state_(new PlainLabel(this)) {
  rows_->setObjectName("Bookmarks");
  rows_->setAccessibleName(Caption(TextId::BookmarksPage));
  rows_->setHorizontalHeaderLabels({Caption(TextId::HeadPlace), Caption(TextId::BookmarkNote)});
  rows_->horizontalHeader()->resizeSection(kNameColumn, kBookmarkNameWidth);
  rows_->horizontalHeader()->setStretchLastSection(true);
  rows_->verticalHeader()->hide();
  rows_->setSelectionBehavior(QAbstractItemView::SelectRows);
  rows_->setSelectionMode(QAbstractItemView::SingleSelection);
  rows_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked |
                         QAbstractItemView::AnyKeyPressed);
  rows_->setTabKeyNavigation(false);
  state_->setObjectName("BookmarksState");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(rows_, 1);
  layout->addWidget(state_);
  layout->addWidget(MakeButtons());
  connect(rows_, &QTableWidget::cellChanged, this,
          [this](int row, int column) { Edit(row, column); });
  connect(rows_, &QTableWidget::cellDoubleClicked, this, [this] { ShowChosen(); });
  auto* remove = new QShortcut(Qt::Key_Delete, rows_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, [this] { DeleteChosen(); });
  ShowRows();
}

QString BookmarksPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

// Of the desktop's dialogs for files.
QString BookmarksPage::FileFilter() const {
  return Caption(TextId::BookmarkFiles) + " (*.txt)";
}

QWidget* BookmarksPage::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* layout = new QHBoxLayout(bar);
  layout->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, TextId caption, auto act) {
    auto* button = new QPushButton(Caption(caption), bar);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, act);
    layout->addWidget(button);
  };
  add("BookmarkAdd", TextId::BookmarkAdd, [this] { Add(actions_.Current()); });
  add("BookmarkShow", TextId::ShowOnMap, [this] { ShowChosen(); });
  add("BookmarkDelete", TextId::BookmarkDelete, [this] { DeleteChosen(); });
  add("BookmarkExport", TextId::Export, [this] { Export(); });
  add("BookmarkTake", TextId::BookmarkTake, [this] { Import(); });
  layout->addStretch(1);
  return bar;
}

void BookmarksPage::ShowRows() {
  const QSignalBlocker quiet(rows_);
  rows_->setRowCount(static_cast<int>(bookmarks_.size()));
  for (int row = 0; row < rows_->rowCount(); ++row) {
    const Bookmark& mark = bookmarks_[static_cast<std::size_t>(row)];
    rows_->setItem(row, kNameColumn, new QTableWidgetItem(QString::fromStdString(mark.Name)));
    rows_->setItem(row, kNoteColumn, new QTableWidgetItem(QString::fromStdString(mark.Note)));
  }
}

void BookmarksPage::Edit(int row, int column) {
  Bookmark& mark = bookmarks_[static_cast<std::size_t>(row)];
  std::string& text = column == kNameColumn ? mark.Name : mark.Note;
  text = rows_->item(row, column)->text().toStdString();
  Store();
}

void BookmarksPage::Add(const Bookmark& mark) {
  bookmarks_.push_back(mark);
  ShowRows();
  Store();
  const int row = rows_->rowCount() - 1;
  rows_->setCurrentCell(row, kNoteColumn);
  rows_->setFocus();
}

void BookmarksPage::ShowChosen() {
  const int row = rows_->currentRow();
  if (row >= 0) actions_.Show(bookmarks_[static_cast<std::size_t>(row)]);
}

void BookmarksPage::DeleteChosen() {
  const int row = rows_->currentRow();
  if (row < 0) return;
  bookmarks_.erase(bookmarks_.begin() + row);
  ShowRows();
  Store();
}

void BookmarksPage::Store() {
  const bool stored = SaveTo(file_);
  state_->setText(stored ? QString()
                         : QString::fromStdString(
                               FormatIn(choice_.Current, TextId::CannotWriteFile, TextOf(file_))));
}

void BookmarksPage::Export() {
  const QString name = QFileDialog::getSaveFileName(this, Caption(TextId::Export),
                                                    "Orrerix-Bookmarks.txt", FileFilter());
  if (name.isEmpty() || SaveTo(PathOf(name.toStdString()))) return;
  state_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CannotWriteFile, name.toStdString())));
}

void BookmarksPage::Import() {
  const QString name =
      QFileDialog::getOpenFileName(this, Caption(TextId::BookmarkTake), {}, FileFilter());
  if (!name.isEmpty()) TakeFrom(PathOf(name.toStdString()));
}

void BookmarksPage::TakeFrom(const std::filesystem::path& file) {
  const auto taken = LoadBookmarks(file);
  if (!taken) {
    state_->setText(
        QString::fromStdString(FormatIn(choice_.Current, TextId::BookmarksWrong, TextOf(file))));
    return;
  }
  MergedBookmarks merged = Merged(std::move(bookmarks_), *taken);
  bookmarks_ = std::move(merged.All);
  ShowRows();
  Store();
  state_->setText(
      QString::fromStdString(FormatIn(choice_.Current, TextId::BookmarksTaken, merged.Added)));
}

}  // namespace orrerix
