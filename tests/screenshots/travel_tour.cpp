// SPDX-License-Identifier: MIT
#include "travel_tour.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <stdexcept>

#include <fmt/format.h>

#include "forms/controls/captions.h"
#include "forms/workbench/travel/trade_model.h"

namespace orrerix {
namespace {

template <typename Child>
Child& ChildOf(QWidget& window, const char* name) {
  if (auto* child = window.findChild<Child*>(name)) return *child;
  throw std::runtime_error(fmt::format("there is no {}", name));
}

int RowsIn(QWidget& page, const char* table) {
  return ChildOf<QTableView>(page, table).model()->rowCount();
}

}  // namespace

void TravelTour::Go() {
  main_.MapTools().Open();
  TakeCommodities();
  TakeTrades();
  TakeLoop();
  TakeNoWay();
  Window().close();
}

QWidget& TravelTour::Window() const {
  for (QWidget* form : QApplication::topLevelWidgets()) {
    if (form->objectName() == "Workbench") return *form;
  }
  throw std::runtime_error("the tools have no window");
}

// The page with a name in the list of pages.
QWidget& TravelTour::Page(TextId name) {
  auto& pages = ChildOf<QListWidget>(Window(), "PageList");
  const auto found = pages.findItems(CaptionIn(Language::English, name), Qt::MatchExactly);
  if (found.isEmpty()) throw std::runtime_error("a page is missing");
  pages.setCurrentItem(found.front());
  return *ChildOf<QStackedWidget>(Window(), "PageStack").currentWidget();
}

void TravelTour::Find(QWidget& page) {
  ChildOf<QPushButton>(page, "Find").click();
  wait_("an answer", [&] { return !ChildOf<QPushButton>(page, "Cancel").isEnabled(); });
}

void TravelTour::ChooseFarthest(QWidget& page) {
  auto& table = ChildOf<QTableView>(page, "Trades");
  const auto jumps = [&] { return table.model()->index(0, TradeModel::JumpsColumn).data(); };
  wait_("the jumps of the trades", [&] { return !jumps().toString().isEmpty(); });
  table.sortByColumn(TradeModel::JumpsColumn, Qt::DescendingOrder);
  table.selectRow(0);
  // The legs of the trade that was chosen before may still stand there.
  const QString goods = table.model()->index(0, TradeModel::GoodsColumn).data().toString();
  wait_("the legs of a trade", [&] {
    const QAbstractItemModel& legs = *ChildOf<QTableView>(page, "Legs").model();
    return goods.startsWith(legs.index(0, WayLegModel::GoodsColumn).data().toString()) &&
           legs.rowCount() > 0;
  });
}

void TravelTour::ShowWay(QWidget& page, const QString& name) {
  wait_("the legs of a way", [&] { return RowsIn(page, "Legs") > 0; });
  ChildOf<QPushButton>(page, "ShowWay").click();
  takeMain_(name);
  ChildOf<QPushButton>(page, "HideWay").click();
}

// From where the best of them is bought, with the first place that has a way to it.
void TravelTour::TakeCommodities() {
  QWidget& page = Page(TextId::GoodsPage);
  wait_("the commodities", [&] { return RowsIn(page, "Commodities") > 0; });
  const QAbstractItemModel& goods = *ChildOf<QTableView>(page, "Commodities").model();
  const QString start = goods.index(0, 1).data().toString().section(", ", 0, 0);
  ChildOf<QComboBox>(page, "From").setEditText(start);
  Find(page);
  wait_("the places", [&] { return RowsIn(page, "Places") > 0; });
  auto& places = ChildOf<QTableView>(page, "Places");
  for (int row = 0; row < RowsIn(page, "Places") && RowsIn(page, "Legs") == 0; ++row) {
    places.selectRow(row);
  }
  album_.Take("tools-commodities", Window());
}

// The trade of the list that leads farthest.
void TravelTour::TakeTrades() {
  QWidget& page = Page(TextId::TradesPage);
  ChildOf<QComboBox>(page, "From").setEditText("");
  Find(page);
  ChooseFarthest(page);
  ShowWay(page, "map-way");
  album_.Take("tools-trades", Window());
}

void TravelTour::TakeLoop() {
  QWidget& page = Page(TextId::TradesPage);
  ChildOf<QCheckBox>(page, "Loop").click();
  Find(page);
  ChooseFarthest(page);
  ShowWay(page, "map-loop");
  ChildOf<QCheckBox>(page, "Loop").click();
}

// Between the ends of the list of places, without any jump.
void TravelTour::TakeNoWay() {
  QWidget& page = Page(TextId::WayPage);
  auto& from = ChildOf<QComboBox>(page, "From");
  auto& to = ChildOf<QComboBox>(page, "To");
  wait_("the places", [&] { return to.count() > 0; });
  from.setCurrentIndex(0);
  to.setCurrentIndex(to.count() - 1);
  for (const char* without : {"NoGates", "NoHoles"}) ChildOf<QCheckBox>(page, without).click();
  Find(page);
  album_.Take("tools-no-way", Window());
  for (const char* without : {"NoGates", "NoHoles"}) ChildOf<QCheckBox>(page, without).click();
}

}  // namespace orrerix
