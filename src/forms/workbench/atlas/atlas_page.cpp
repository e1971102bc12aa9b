// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_page.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "atlas/hardpoints.h"
#include "atlas/registry.h"
#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/workbench/atlas/atlas_captions.h"
#include "forms/workbench/atlas/atlas_conditions.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kListWidth = 175;
constexpr int kShipWidth = 200;
constexpr int kRowPadding = 6;

}  // namespace

AtlasPage::AtlasPage(WorkbenchHost& host, const LanguageChoice& choice, QSettings& settings)
    : WorkbenchPage(TextId::AtlasPage), host_(host), choice_(choice), settings_(settings) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  tables_ = new QListWidget(this);
  tables_->setObjectName("AtlasTables");
  tables_->setAccessibleName(Caption(TextId::AtlasTables));
  tables_->setFixedWidth(kListWidth);
  for (const AtlasTable& table : AtlasTables()) {
    auto* item = new QListWidgetItem(AtlasCaption(choice.Current, table.Title), tables_);
    item->setToolTip(QString::fromStdString(table.About));
  }
  layout->addWidget(tables_);
  auto* column = new QVBoxLayout;
  column->addWidget(MakeBar());
  state_ = new PlainLabel(this);
  state_->setObjectName("State");
  column->addWidget(state_);
  column->addWidget(MakePanes(), 1);
  columns_ = std::make_unique<AtlasColumns>(*view_, model_, settings_, choice_);
  output_ = std::make_unique<AtlasOutput>(*view_, model_, *columns_, choice_);
  output_->OnState = [this](const QString& text) { state_->setText(text); };
  column->addWidget(MakeButtons());
  layout->addLayout(column, 1);
  KeepPinsAligned();
  connect(tables_, &QListWidget::currentRowChanged, this, [this](int row) {
    RememberTable();
    ShowTable(row);
  });
}

QString AtlasPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QLineEdit* AtlasPage::MakeEdit(const char* name, TextId caption) {
  auto* edit = new QLineEdit(this);
  edit->setObjectName(name);
  edit->setPlaceholderText(Caption(caption));
  edit->setAccessibleName(Caption(caption));
  edit->setClearButtonEnabled(true);
  connect(edit, &QLineEdit::textChanged, this, [this] { Filter(); });
  return edit;
}

QWidget* AtlasPage::MakeBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  filter_ = MakeEdit("Filter", TextId::FilterText);
  conditions_ = MakeEdit("Conditions", TextId::AtlasConditions);
  conditions_->setToolTip(Caption(TextId::AtlasConditionsTip));
  ships_ = new QComboBox(bar);
  ships_->setObjectName("FitsShip");
  ships_->setAccessibleName(Caption(TextId::AtlasFits));
  ships_->setFixedWidth(kShipWidth);
  ships_->addItem(Caption(TextId::AtlasAnyShip));
  connect(ships_, &QComboBox::currentIndexChanged, this, [this] { Filter(); });
  row->addWidget(filter_, 2);
  row->addWidget(conditions_, 3);
  row->addWidget(new PlainLabel(Caption(TextId::AtlasFits), bar));
  row->addWidget(ships_);
  return bar;
}

QTableView* AtlasPage::MakeView(const char* name, TextId caption, QAbstractItemModel& model) {
  auto* view = new QTableView(this);
  view->setObjectName(name);
  view->setAccessibleName(Caption(caption));
  view->setModel(&model);
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setAlternatingRowColors(true);
  view->setWordWrap(false);
  view->setTabKeyNavigation(false);
  view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view->verticalHeader()->hide();
  view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + kRowPadding);
  view->horizontalHeader()->setHighlightSections(false);
  return view;
}

QWidget* AtlasPage::MakePanes() {
  view_ = MakeView("AtlasTable", TextId::AtlasPage, model_);
  auto* header = new FilterHeader(view_);
  header->OnEdited = [this] { Filter(); };
  view_->setHorizontalHeader(header);
  fields_ = std::make_unique<AtlasFields>(*header, model_, settings_, choice_);
  view_->horizontalHeader()->setSortIndicatorClearable(true);
  view_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  view_->setSortingEnabled(true);
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowChosen(); });
  chart_ = new AtlasChartPane(model_, choice_);
  chart_->setObjectName("ChartPane");
  chart_->Chart().OnChosen = [this](std::size_t row) { Choose(row); };
  chart_->hide();
  details_ = new AtlasDetails(host_, choice_);
  details_->OnState = [this](const QString& text) { state_->setText(text); };
  auto* across = new QSplitter(this);
  across->addWidget(view_);
  across->addWidget(chart_);
  across->setStretchFactor(0, 3);
  across->setStretchFactor(1, 2);
  auto* split = new QSplitter(Qt::Vertical, this);
  split->addWidget(across);
  split->addWidget(MakePinnedPane());
  split->addWidget(details_);
  for (const auto& [pane, share] : {std::pair(0, 6), std::pair(1, 2), std::pair(2, 2)}) {
    split->setStretchFactor(pane, share);
  }
  return split;
}

QWidget* AtlasPage::MakePinnedPane() {
  pinPane_ = new QWidget(this);
  auto* layout = new QVBoxLayout(pinPane_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new PlainLabel(
      Caption(TextId::AtlasPinned) + ": " + Caption(TextId::AtlasPinnedTip), pinPane_));
  pinView_ = MakeView("AtlasPinned", TextId::AtlasPinned, pins_);
  pinView_->horizontalHeader()->hide();
  layout->addWidget(pinView_, 1);
  pinPane_->hide();
  return pinPane_;
}

QPushButton* AtlasPage::AddButton(QWidget& bar, const char* name, TextId caption) {
  auto* button = new QPushButton(Caption(caption), &bar);
  button->setObjectName(name);
  bar.layout()->addWidget(button);
  return button;
}

QWidget* AtlasPage::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  MakeColumnMenus(*AddButton(*bar, "Columns", TextId::AtlasColumns));
  connect(AddButton(*bar, "Pin", TextId::AtlasPin), &QPushButton::clicked, this,
          [this] { PinChosen(); });
  connect(AddButton(*bar, "Unpin", TextId::AtlasUnpin), &QPushButton::clicked, this, [this] {
    pins_.Unpin(std::max(pinView_->currentIndex().row(), 0));
    PinsChanged();
  });
  QPushButton* chart = AddButton(*bar, "ShowChart", TextId::AtlasChart);
  chart->setCheckable(true);
  connect(chart, &QPushButton::toggled, chart_, [this](bool on) {
    chart_->setVisible(on);
    if (on) chart_->Refresh();
  });
  connect(AddButton(*bar, "CopyRows", TextId::AtlasCopyRows), &QPushButton::clicked, this,
          [this] { output_->CopyRows(); });
  connect(AddButton(*bar, "Export", TextId::Export), &QPushButton::clicked, this,
          [this] { output_->Export(); });
  connect(AddButton(*bar, "Print", TextId::AtlasPrint), &QPushButton::clicked, this,
          [this] { output_->Print(); });
  row->addStretch(1);
  auto* copy = new QAction(view_);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this, [this] { output_->CopyRows(); });
  view_->addAction(copy);
  return bar;
}

void AtlasPage::MakeColumnMenus(QPushButton& button) {
  auto* menu = new QMenu(&button);
  menu->setObjectName("ColumnMenu");
  menu->setAttribute(Qt::WA_WindowPropagation);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { columns_->Fill(*menu, -1); });
  button.setMenu(menu);
  QHeaderView* head = view_->horizontalHeader();
  head->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(head, &QWidget::customContextMenuRequested, this, [this, head](const QPoint& place) {
    auto* headMenu = new QMenu(this);
    headMenu->setAttribute(Qt::WA_DeleteOnClose);
    headMenu->setAttribute(Qt::WA_WindowPropagation);
    columns_->Fill(*headMenu, head->logicalIndexAt(place));
    headMenu->popup(head->mapToGlobal(place));
  });
}

// The pinned rows stand below the columns of the table.
void AtlasPage::KeepPinsAligned() {
  connect(view_->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) {
            pinView_->setColumnHidden(column, width == 0);
            if (width > 0) pinView_->setColumnWidth(column, width);
          });
  connect(view_->horizontalScrollBar(), &QScrollBar::valueChanged, pinView_->horizontalScrollBar(),
          &QScrollBar::setValue);
  connect(pinView_->horizontalScrollBar(), &QScrollBar::valueChanged, view_->horizontalScrollBar(),
          &QScrollBar::setValue);
}

void AtlasPage::Enter() {
  if (std::exchange(isRead_, true)) return;
  state_->setText(Caption(TextId::Calculating));
  task_.Start(
      [file = host_.UniverseFile()](const BackgroundTask::IsCancelled& isCancelled) {
        return ReadAtlas(file, isCancelled);
      },
      [this](AtlasContent content) { Show(std::move(content)); });
}

void AtlasPage::Leave() {
  RememberTable();
}

void AtlasPage::UniverseChanged() {
  task_.Cancel();
  RememberTable();
  model_.Clear();
  chosen_.reset();
  details_->Clear();
  PinsChanged();
  content_ = {};
  state_->clear();
  isRead_ = false;
  if (isVisible()) Enter();
}

void AtlasPage::Show(AtlasContent content) {
  content_ = std::move(content);
  if (content_.Tables.empty()) return state_->setText(content_.Error);
  OfferShips();
  const QString last = settings_.value(setting_key::kAtlasTable).toString();
  int index = 0;
  for (std::size_t i = 0; i < content_.Tables.size(); ++i) {
    if (last.toStdString() == content_.Tables[i].About->Id) index = static_cast<int>(i);
  }
  const QSignalBlocker quiet(tables_);
  tables_->setCurrentRow(index);
  ShowTable(index);
}

void AtlasPage::OfferShips() {
  const QSignalBlocker quiet(ships_);
  while (ships_->count() > 1) ships_->removeItem(1);
  for (const AtlasShip& ship : content_.Ships) {
    ships_->addItem(ship.Text, QString::fromStdString(ship.Nickname));
  }
  const QString last = settings_.value(setting_key::kAtlasShip).toString();
  ships_->setCurrentIndex(last.isEmpty() ? 0 : std::max(ships_->findData(last), 0));
}

QString AtlasPage::Key(const char* what) const {
  return QString("atlas/%1/%2").arg(QString::fromStdString(model_.Table()->Id), what);
}

void AtlasPage::ShowTable(int index) {
  if (index < 0 || content_.Tables.empty()) return;
  const AtlasContent::Table& table = content_.Tables[static_cast<std::size_t>(index)];
  model_.Show(*table.About, table.Rows);
  chosen_.reset();
  details_->Clear();
  PinsChanged();
  ships_->setEnabled(HardpointColumnOf(*table.About).has_value());
  fields_->Offer();
  columns_->Recall();
  {
    const QSignalBlocker quietFilter(filter_);
    const QSignalBlocker quietConditions(conditions_);
    filter_->setText(settings_.value(Key(setting_key::kAtlasFilter)).toString());
    conditions_->setText(settings_.value(Key(setting_key::kAtlasConditions)).toString());
  }
  fields_->Recall();
  chart_->OfferColumns(settings_.value(Key(setting_key::kAtlasAxes)).toString());
  Filter();
}

void AtlasPage::ShowRows(const QString& table, const QString& text) {
  RememberTable();
  settings_.setValue(setting_key::kAtlasTable, table);
  settings_.setValue(QString("atlas/%1/%2").arg(table, setting_key::kAtlasFilter), text);
  settings_.setValue(QString("atlas/%1/%2").arg(table, setting_key::kAtlasConditions), QString());
  settings_.setValue(QString("atlas/%1/%2").arg(table, setting_key::kAtlasFields), QStringList());
  if (!content_.Tables.empty()) Show(std::move(content_));
}

void AtlasPage::RememberTable() {
  if (model_.Table() == nullptr) return;
  columns_->Remember();
  settings_.setValue(setting_key::kAtlasTable, QString::fromStdString(model_.Table()->Id));
  settings_.setValue(setting_key::kAtlasShip, ships_->currentData().toString());
  settings_.setValue(Key(setting_key::kAtlasFilter), filter_->text());
  settings_.setValue(Key(setting_key::kAtlasConditions), conditions_->text());
  fields_->Remember();
  settings_.setValue(Key(setting_key::kAtlasAxes), chart_->Axes());
}

// Those of the text and those of the fields; what is wrong first is said.
AtlasConditions AtlasPage::ReadConditions() {
  AtlasConditions all = ParseConditions(*model_.Table(), conditions_->text(), choice_.Current);
  const AtlasFieldConditions fields = fields_->Read();
  all.All.insert(all.All.end(), fields.All.begin(), fields.All.end());
  for (const QString& error : fields.Errors) {
    if (all.Error.isEmpty()) all.Error = error;
  }
  return all;
}

// The chosen row stays chosen if it is still there, else the first one is. Its details are not
// read again with every letter.
void AtlasPage::Filter() {
  if (model_.Table() == nullptr) return;
  const std::size_t chosen = chosen_.value_or(0);
  AtlasConditions conditions = ReadConditions();
  AtlasChoice choice{filter_->text().trimmed(), std::move(conditions.All), {}};
  const int ship = ships_->currentIndex() - 1;
  if (ship >= 0) choice.Types = content_.Ships[static_cast<std::size_t>(ship)].Types;
  isFiltering_ = true;
  model_.Choose(std::move(choice));
  Choose(model_.RowOf(chosen) < 0 && model_.rowCount() > 0 ? model_.StoredRow(0) : chosen);
  isFiltering_ = false;
  ShowSums(conditions.Error);
  ShowChosen();
  if (chart_->isVisible()) chart_->Refresh();
}

void AtlasPage::ShowSums(const QString& error) {
  const QString sums = QString::fromStdString(
      FormatIn(choice_.Current, TextId::AtlasSums, model_.rowCount(), model_.StoredCount()));
  state_->setText(error.isEmpty() ? sums : sums + ". " + error);
}

void AtlasPage::Choose(std::size_t storedRow) {
  const int row = model_.RowOf(storedRow);
  if (row < 0) return;
  view_->selectRow(row);
  view_->scrollTo(model_.index(row, 0));
}

void AtlasPage::ShowChosen() {
  if (isFiltering_) return;
  const QModelIndex current = view_->currentIndex();
  const auto row =
      current.isValid() ? std::optional(model_.StoredRow(current.row())) : std::nullopt;
  if (std::exchange(chosen_, row) == row) return;
  chart_->Chart().Mark(row);
  if (!row) return details_->Clear();
  details_->Show(content_, content_.Tables[static_cast<std::size_t>(tables_->currentRow())], *row);
}

void AtlasPage::PinChosen() {
  for (const int row : output_->ChosenRows()) pins_.Pin(model_.StoredRow(row));
  PinsChanged();
}

void AtlasPage::PinsChanged() {
  pinPane_->setVisible(pins_.rowCount() > 0);
  for (int column = 0; column < model_.columnCount(); ++column) {
    pinView_->setColumnHidden(column, view_->isColumnHidden(column));
    if (!view_->isColumnHidden(column)) {
      pinView_->setColumnWidth(column, view_->columnWidth(column));
    }
  }
}

}  // namespace orrerix
