// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_chart_pane.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"

namespace orrerix {
namespace {

constexpr int kLeastHeadLength = 12;  // characters
// What is compared first, where a table has it.
constexpr const char* kFirstX = "range";
constexpr const char* kFirstY = "hull_damage_second";

}  // namespace

AtlasChartPane::AtlasChartPane(const AtlasModel& model, const LanguageChoice& choice)
    : model_(model), choice_(choice) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  chart_ = new AtlasChart(this);
  chart_->setObjectName("AtlasChart");
  chart_->setAccessibleName(CaptionIn(choice.Current, TextId::AtlasChart));
  chart_->SetEmptyText(CaptionIn(choice.Current, TextId::AtlasNoPoints));
  y_ = AddAxis("AtlasAxisY", TextId::AtlasAxisY);
  x_ = AddAxis("AtlasAxisX", TextId::AtlasAxisX);
  layout->addWidget(chart_, 1);
}

QComboBox* AtlasChartPane::AddAxis(const char* name, TextId caption) {
  auto* row = new QHBoxLayout;
  auto* label = new PlainLabel(CaptionIn(choice_.Current, caption), this);
  auto* box = new QComboBox(this);
  box->setObjectName(name);
  box->setAccessibleName(label->text());
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kLeastHeadLength);
  row->addWidget(label);
  row->addWidget(box, 1);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  connect(box, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  return box;
}

void AtlasChartPane::OfferColumns(const QString& axes) {
  const QSignalBlocker quietX(x_);
  const QSignalBlocker quietY(y_);
  x_->clear();
  y_->clear();
  for (int column = 0; column < model_.columnCount(); ++column) {
    if (!model_.IsNumber(column)) continue;
    const QString head = model_.Head(static_cast<std::size_t>(column));
    for (QComboBox* box : {x_, y_}) box->addItem(head, column);
  }
  ChooseAxes(axes);
  Refresh();
}

void AtlasChartPane::ChooseAxes(const QString& axes) {
  if (model_.Table() == nullptr) return;
  const QStringList known = axes.split(' ', Qt::SkipEmptyParts);
  const auto itemOf = [this](const QString& id) {
    const auto column = model_.Table()->Find(id.toStdString());
    return column ? x_->findData(static_cast<int>(*column)) : -1;
  };
  const auto choose = [&](QComboBox& box, const QString& wanted, const char* usual, int otherwise) {
    int item = itemOf(wanted);
    if (item < 0) item = itemOf(usual);
    box.setCurrentIndex(item >= 0 ? item : std::min(otherwise, box.count() - 1));
  };
  choose(*x_, known.value(0), kFirstX, 0);
  choose(*y_, known.value(1), kFirstY, 1);
}

QString AtlasChartPane::Axes() const {
  QStringList ids;
  for (const QComboBox* box : {x_, y_}) {
    if (model_.Table() == nullptr || box->currentIndex() < 0) return {};
    const auto column = static_cast<std::size_t>(box->currentData().toInt());
    ids.append(QString::fromStdString(model_.Table()->Columns[column].Id));
  }
  return ids.join(' ');
}

void AtlasChartPane::Refresh() {
  std::vector<ChartPoint> points;
  if (x_->currentIndex() >= 0 && y_->currentIndex() >= 0) {
    const auto x = static_cast<std::size_t>(x_->currentData().toInt());
    const auto y = static_cast<std::size_t>(y_->currentData().toInt());
    for (int i = 0; i < model_.rowCount(); ++i) {
      const std::size_t row = model_.StoredRow(i);
      const auto cells = model_.Stored().Row(row);
      if (cells[x].IsNull() || cells[y].IsNull()) continue;
      points.push_back({cells[x].Number(), cells[y].Number(), row, CellText(cells[0])});
    }
  }
  chart_->Show(std::move(points), x_->currentText(), y_->currentText());
}

}  // namespace orrerix
