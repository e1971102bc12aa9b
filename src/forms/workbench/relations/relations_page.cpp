// SPDX-License-Identifier: MIT
#include "forms/workbench/relations/relations_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/layers/universe_snapshot.h"
#include "forms/workbench/relations/attitude_look.h"
#include "forms/workbench/relations/upright_header.h"
#include "forms/workbench/throw_failures.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr QSize kSwatch{26, 18};
constexpr int kCellPadding = 8;

QPixmap SwatchOf(const AttitudeLook& look, const QWidget& on) {
  QPixmap swatch(kSwatch * on.devicePixelRatio());
  swatch.setDevicePixelRatio(on.devicePixelRatio());
  swatch.fill(look.Ground.isValid() ? look.Ground : on.palette().color(QPalette::Base));
  QPainter painter(&swatch);
  painter.setFont(on.font());
  painter.setPen(look.Letters.isValid() ? look.Letters : on.palette().color(QPalette::Text));
  painter.drawText(QRect(QPoint(0, 0), kSwatch), Qt::AlignCenter, look.Symbol);
  return swatch;
}

}  // namespace

RelationsPage::RelationsPage(WorkbenchHost& host, const LanguageChoice& choice)
    : WorkbenchPage(TextId::RelationsPage), host_(host), choice_(choice) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new PlainLabel(Caption(TextId::RelationsHint), this));
  filter_ = new QLineEdit(this);
  filter_->setObjectName("Filter");
  filter_->setPlaceholderText(Caption(TextId::FilterText));
  filter_->setAccessibleName(Caption(TextId::FilterText));
  filter_->setClearButtonEnabled(true);
  connect(filter_, &QLineEdit::textChanged, this, [this] { Filter(); });
  layout->addWidget(filter_);
  layout->addWidget(MakeLegend());
  matrix_ = MakeMatrix();
  layout->addWidget(matrix_, 1);
  state_ = new PlainLabel(this);
  state_->setObjectName("State");
  layout->addWidget(state_);
}

QString RelationsPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QTableView* RelationsPage::MakeMatrix() {
  auto* matrix = new QTableView(this);
  matrix->setObjectName("Relations");
  matrix->setAccessibleName(Caption(TextId::RelationsPage));
  matrix->setHorizontalHeader(new UprightHeader(matrix));
  matrix->setModel(&model_);
  matrix->setSelectionMode(QAbstractItemView::SingleSelection);
  matrix->setTabKeyNavigation(false);
  matrix->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  const int cell = matrix->fontMetrics().height() + kCellPadding;
  matrix->horizontalHeader()->setMinimumSectionSize(cell);
  matrix->horizontalHeader()->setDefaultSectionSize(cell);
  matrix->verticalHeader()->setDefaultSectionSize(cell);
  matrix->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  matrix->setSortingEnabled(true);
  connect(matrix->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { ShowState(); });
  connect(matrix, &QTableView::activated, matrix, [matrix](const QModelIndex& index) {
    matrix->horizontalHeader()->setSortIndicator(index.column(), Qt::DescendingOrder);
  });
  return matrix;
}

QWidget* RelationsPage::MakeLegend() {
  auto* legend = new QWidget(this);
  legend->setObjectName("Legend");
  auto* row = new QHBoxLayout(legend);
  row->setContentsMargins(0, 0, 0, 0);
  for (const Attitude attitude : {Attitude::Hostile, Attitude::Unfriendly, Attitude::Neutral,
                                  Attitude::Friendly, Attitude::Allied}) {
    const AttitudeLook look = LookOf(attitude);
    auto* swatch = new QLabel(legend);
    swatches_.emplace_back(attitude, swatch);
    row->addWidget(swatch);
    row->addWidget(new PlainLabel(Caption(look.Name), legend));
  }
  row->addStretch(1);
  PaintLegend();
  return legend;
}

void RelationsPage::PaintLegend() {
  for (const auto& [attitude, swatch] : swatches_) {
    swatch->setPixmap(SwatchOf(LookOf(attitude), *this));
  }
}

void RelationsPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) PaintLegend();
  WorkbenchPage::changeEvent(event);
}

RelationsPage::Content RelationsPage::Read(const std::filesystem::path& universe,
                                           const std::string& game, Language language) {
  Content content;
  try {
    ThrowFailures sink;
    const UniverseSnapshot snapshot(sink, universe);
    const SourceTables tables(sink, snapshot.Data());
    content.Factions = ReadRelations(tables, GameFolder(game));
    if (content.Factions.empty()) {
      content.Error =
          QString::fromStdString(FormatIn(language, TextId::RelationsNone, RelationsFile(tables)));
    }
  } catch (const std::exception& error) {
    content.Error = QString::fromStdString(error.what());
  }
  return content;
}

void RelationsPage::Enter() {
  if (std::exchange(isRead_, true)) return;
  state_->setText(Caption(TextId::Calculating));
  task_.Start([file = host_.UniverseFile(), game = host_.GameText(), language = choice_.Current](
                  const BackgroundTask::IsCancelled&) { return Read(file, game, language); },
              [this](Content content) { Show(std::move(content)); });
}

void RelationsPage::UniverseChanged() {
  task_.Cancel();
  Show({});
  isRead_ = false;
  if (isVisible()) Enter();
}

void RelationsPage::Show(Content content) {
  count_ = content.Factions.size();
  model_.Show(std::move(content.Factions));
  matrix_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  if (!content.Error.isEmpty()) return state_->setText(content.Error);
  ShowState();
}

void RelationsPage::Filter() {
  model_.Filter(filter_->text());
  ShowState();
}

// The chosen pair in both directions, else how many there are.
void RelationsPage::ShowState() {
  const QModelIndex index = matrix_->currentIndex();
  if (index.isValid()) {
    return state_->setText(model_.TextOf(index) + "; " + model_.TextBack(index));
  }
  state_->setText(QString::fromStdString(
      FormatIn(choice_.Current, TextId::RelationsSums, model_.rowCount(), count_)));
}

}  // namespace orrerix
