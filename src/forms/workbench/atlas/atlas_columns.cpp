// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_columns.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kMostWidth = 220;
constexpr int kMeasuredRows = 50;
constexpr const char* kDescending = ":desc";

QString IdOf(const AtlasTable& table, int column) {
  return QString::fromStdString(table.Columns[static_cast<std::size_t>(column)].Id);
}

}  // namespace

AtlasColumns::AtlasColumns(QTableView& view, AtlasModel& model, QSettings& settings,
                           const LanguageChoice& choice)
    : view_(view), model_(model), settings_(settings), choice_(choice) {
  view_.horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
}

QString AtlasColumns::Key(const char* what) const {
  return QString("atlas/%1/%2").arg(QString::fromStdString(model_.Table()->Id), what);
}

void AtlasColumns::Recall() {
  const QStringList hidden =
      settings_.value(Key(setting_key::kAtlasHidden)).toString().split(' ', Qt::SkipEmptyParts);
  for (int column = 0; column < model_.columnCount(); ++column) {
    view_.setColumnHidden(column, column > 0 && hidden.contains(IdOf(*model_.Table(), column)));
  }
  RecallWidths();
  RecallSorting();
}

void AtlasColumns::RecallWidths() {
  const QStringList known =
      settings_.value(Key(setting_key::kWidths)).toString().split(' ', Qt::SkipEmptyParts);
  view_.resizeColumnsToContents();
  for (int column = 0; column < model_.columnCount(); ++column) {
    int width = std::min(view_.columnWidth(column), kMostWidth);
    const QString id = IdOf(*model_.Table(), column) + "=";
    for (const QString& entry : known) {
      if (entry.startsWith(id) && entry.mid(id.size()).toInt() > 0) {
        width = entry.mid(id.size()).toInt();
      }
    }
    if (!view_.isColumnHidden(column)) view_.setColumnWidth(column, width);
  }
}

void AtlasColumns::RecallSorting() {
  std::vector<AtlasModel::Order> orders;
  const QStringList known =
      settings_.value(Key(setting_key::kAtlasSorting)).toString().split(' ', Qt::SkipEmptyParts);
  for (QString id : known) {
    const bool isDescending = id.endsWith(kDescending);
    if (isDescending) id.chop(static_cast<int>(qstrlen(kDescending)));
    const auto column = model_.Table()->Find(id.toStdString());
    if (column) orders.push_back({*column, isDescending});
  }
  const QSignalBlocker quiet(view_.horizontalHeader());
  const int first = orders.empty() ? -1 : static_cast<int>(orders.front().Column);
  const bool isDescending = !orders.empty() && orders.front().IsDescending;
  view_.horizontalHeader()->setSortIndicator(
      first, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
  model_.SortBy(std::move(orders));
}

void AtlasColumns::Remember() const {
  if (model_.Table() == nullptr) return;
  QStringList hidden;
  QStringList widths;
  QStringList sorting;
  for (int column = 0; column < model_.columnCount(); ++column) {
    const QString id = IdOf(*model_.Table(), column);
    if (view_.isColumnHidden(column)) {
      hidden.append(id);
    } else {
      widths.append(id + "=" + QString::number(view_.columnWidth(column)));
    }
  }
  for (const AtlasModel::Order& order : model_.Orders()) {
    sorting.append(IdOf(*model_.Table(), static_cast<int>(order.Column)) +
                   (order.IsDescending ? kDescending : ""));
  }
  settings_.setValue(Key(setting_key::kAtlasHidden), hidden.join(' '));
  settings_.setValue(Key(setting_key::kWidths), widths.join(' '));
  settings_.setValue(Key(setting_key::kAtlasSorting), sorting.join(' '));
}

// The first column, which names the row, stays.
void AtlasColumns::Fill(QMenu& menu, int column) {
  menu.clear();
  if (column > 0) {
    menu.addAction(CaptionIn(choice_.Current, TextId::AtlasHideColumn),
                   [this, column] { view_.setColumnHidden(column, true); });
  }
  menu.addAction(CaptionIn(choice_.Current, TextId::AtlasAllColumns), [this] { ShowAll(); });
  menu.addSeparator();
  for (int i = 1; i < model_.columnCount(); ++i) {
    const QString head = model_.Head(static_cast<std::size_t>(i));
    QAction* action = menu.addAction(QString(head).replace("&", "&&"));
    action->setCheckable(true);
    action->setChecked(!view_.isColumnHidden(i));
    QObject::connect(action, &QAction::toggled, &view_,
                     [this, i](bool on) { view_.setColumnHidden(i, !on); });
  }
}

void AtlasColumns::ShowAll() {
  for (int column = 0; column < model_.columnCount(); ++column) {
    view_.setColumnHidden(column, false);
  }
}

std::vector<std::size_t> AtlasColumns::Shown() const {
  std::vector<std::size_t> columns;
  for (int column = 0; column < model_.columnCount(); ++column) {
    if (!view_.isColumnHidden(column)) columns.push_back(static_cast<std::size_t>(column));
  }
  return columns;
}

}  // namespace orrerix
