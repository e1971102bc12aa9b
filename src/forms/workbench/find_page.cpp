// SPDX-License-Identifier: MIT
#include "forms/workbench/find_page.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/layers/universe_snapshot.h"
#include "forms/workbench/throw_failures.h"
#include "space/read_space.h"

namespace orrerix {
namespace {

constexpr std::size_t kMostFoundRows = 300;
constexpr int kFoundKindWidth = 150;
constexpr int kFoundWhereWidth = 160;
constexpr int kFoundNicknameWidth = 220;

using Book = std::shared_ptr<const FindBook>;

Book ReadBook(const std::filesystem::path& universe, const std::string& game,
              const BackgroundTask::IsCancelled& isCancelled) {
  try {
    ThrowFailures sink;
    const UniverseSnapshot snapshot(sink, universe);
    const AtlasSource source(sink, snapshot.Data());
    const Space space = ReadSpace(source.Tables, GameFolder(game), isCancelled);
    return std::make_shared<const FindBook>(ReadFindBook(source, space, isCancelled));
  } catch (const std::exception&) {
    return std::make_shared<const FindBook>();
  }
}

TextId CaptionOf(FoundKind kind) {
  switch (kind) {
    case FoundKind::System:
      return TextId::KindSystem;
    case FoundKind::Place:
      return TextId::KindPlace;
    case FoundKind::Body:
      return TextId::KindBody;
    case FoundKind::Gate:
      return TextId::KindGate;
    case FoundKind::Zone:
      return TextId::KindZone;
    case FoundKind::Ship:
      return TextId::KindShip;
    case FoundKind::Commodity:
      return TextId::KindGood;
    case FoundKind::Equipment:
      return TextId::KindEquipment;
    case FoundKind::Faction:
      return TextId::KindFaction;
  }
  return TextId::KindPlace;
}

}  // namespace

FindPage::FindPage(WorkbenchHost& host, const LanguageChoice& choice, Actions actions)
    : WorkbenchPage(TextId::FindPage),
      host_(host),
      choice_(choice),
      actions_(std::move(actions)),
      text_(new QLineEdit(this)),
      sums_(new PlainLabel(this)),
      rows_(new QTreeWidget(this)),
      infoText_(new PlainLabel(this)) {
  text_->setObjectName("FindText");
  text_->setPlaceholderText(Caption(TextId::FindField));
  text_->setAccessibleName(Caption(TextId::FindField));
  text_->setClearButtonEnabled(true);
  text_->installEventFilter(this);
  sums_->setObjectName("FindSums");
  rows_->setObjectName("FindRows");
  rows_->setAccessibleName(Caption(TextId::FindPage));
  rows_->setRootIsDecorated(false);
  rows_->setUniformRowHeights(true);
  rows_->setHeaderLabels({Caption(TextId::HeadText), Caption(TextId::HeadKind),
                          Caption(TextId::HeadSystem), Caption(TextId::HeadNickname)});
  rows_->header()->setStretchLastSection(false);
  rows_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  rows_->header()->resizeSection(1, kFoundKindWidth);
  rows_->header()->resizeSection(2, kFoundWhereWidth);
  rows_->header()->resizeSection(3, kFoundNicknameWidth);
  infoText_->setObjectName("FindInfoText");
  infoText_->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_);
  layout->addWidget(sums_);
  layout->addWidget(rows_, 1);
  layout->addWidget(infoText_);
  connect(text_, &QLineEdit::textChanged, this, [this] { Find(); });
  connect(text_, &QLineEdit::returnPressed, this, [this] { GoOn(); });
  connect(rows_, &QTreeWidget::itemSelectionChanged, this, [this] { Follow(); });
  connect(rows_, &QTreeWidget::itemActivated, this, [this] { GoOn(); });
}

QString FindPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

void FindPage::Enter() {
  text_->setFocus();
  if (std::exchange(isRead_, true)) return;
  sums_->setText(Caption(TextId::LayersReading));
  task_.Start(
      [file = host_.UniverseFile(),
       game = host_.GameText()](const BackgroundTask::IsCancelled& isCancelled) {
        return ReadBook(file, game, isCancelled);
      },
      [this](Book book) {
        book_ = std::move(book);
        Find();
      });
}

void FindPage::UniverseChanged() {
  found_ = {};
  rows_->clear();
  book_.reset();
  isRead_ = false;
  if (isVisible()) Enter();
}

void FindPage::Begin(const QString& text) {
  if (!text.isEmpty()) text_->setText(text);
  text_->selectAll();
  text_->setFocus();
}

QString FindPage::KindOf(const FoundThing& thing) const {
  return Caption(CaptionOf(thing.Kind));
}

void FindPage::Find() {
  if (book_ == nullptr) return;
  found_ = book_->Find(text_->text().toStdString(), kMostFoundRows);
  {
    const QSignalBlocker quiet(rows_);
    rows_->clear();
    QList<QTreeWidgetItem*> items;
    for (const FoundRow& row : found_.Rows) {
      const FoundThing& thing = *row.Thing;
      QString name = QString::fromStdString(thing.Name);
      if (!row.Passage.empty()) name += ": " + QString::fromStdString(row.Passage);
      items.push_back(new QTreeWidgetItem({name, KindOf(thing), QString::fromStdString(thing.Where),
                                           QString::fromStdString(thing.Nickname)}));
    }
    rows_->addTopLevelItems(items);
    if (!items.isEmpty()) rows_->setCurrentItem(items.front());
  }
  sums_->setText(QString::fromStdString(
      found_.Count > found_.Rows.size()
          ? FormatIn(choice_.Current, TextId::FindManySums, found_.Count, found_.Rows.size())
          : FormatIn(choice_.Current, TextId::FindSums, found_.Count)));
  Follow();
}

const FoundThing* FindPage::Chosen() const {
  const int row = rows_->indexOfTopLevelItem(rows_->currentItem());
  return row < 0 ? nullptr : found_.Rows[static_cast<std::size_t>(row)].Thing;
}

// The map moves along; nothing opens yet.
void FindPage::Follow() {
  const FoundThing* thing = Chosen();
  infoText_->setText(thing == nullptr ? QString() : QString::fromStdString(thing->InfoText));
  if (thing != nullptr && thing->Cell) actions_.ShowCell(*thing->Cell);
}

void FindPage::GoOn() {
  const FoundThing* thing = Chosen();
  if (thing == nullptr) return;
  if (thing->Kind == FoundKind::Place && host_.ShowOnMap(thing->Nickname)) return;
  if (thing->Cell) return actions_.ShowCell(*thing->Cell);
  actions_.ShowInAtlas(thing->AtlasTable, thing->Name);
}

// The arrow keys move through the list while the text is typed.
bool FindPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == text_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      const int row = rows_->indexOfTopLevelItem(rows_->currentItem());
      const int next = row + (key == Qt::Key_Down ? 1 : -1);
      if (next >= 0 && next < rows_->topLevelItemCount()) {
        rows_->setCurrentItem(rows_->topLevelItem(next));
      }
      return true;
    }
  }
  return WorkbenchPage::eventFilter(watched, event);
}

}  // namespace orrerix
