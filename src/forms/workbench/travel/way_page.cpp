// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/way_page.h"

#include <QVBoxLayout>

namespace orrerix {

WayPage::WayPage(const TravelParts& parts)
    : TravelPage(TextId::WayPage, TextId::FindWay, "way", parts) {
  legTable_->setColumnHidden(WayLegModel::GoodsColumn, true);
  reasons_ = new QPlainTextEdit(this);
  reasons_->setObjectName("Reasons");
  reasons_->setReadOnly(true);
  reasons_->hide();
  results_->addWidget(legTable_, 1);
  results_->addWidget(reasons_, 1);
  results_->addWidget(mapButtons_);
}

// A player who stands at the place itself says from where.
void WayPage::ShowWayTo(const std::string& place) {
  fields_->ShowTo(place);
  if (fields_->From() == fields_->To()) fields_->StandAt({});
  Start();
}

void WayPage::Run() {
  const std::string from = fields_->From();
  const std::string to = fields_->To();
  if (from.empty() || to.empty()) {
    Clear();
    fields_->FocusEmpty();
    return;
  }
  task_.Start(
      [file = host_.UniverseFile(), request = Request(), from, to,
       language = choice_.Current](const BackgroundTask::IsCancelled&) {
        return SearchWay(file, request, from, to, language);
      },
      [this](WayOutcome outcome) { Show(std::move(outcome)); });
}

void WayPage::Show(WayOutcome outcome) {
  ShowDone(outcome.Sums);
  legs_.Show(std::move(outcome.Legs));
  reasons_->setPlainText(outcome.Reasons);
  reasons_->setVisible(!outcome.Reasons.isEmpty());
  legTable_->setVisible(outcome.Reasons.isEmpty());
}

void WayPage::Clear() {
  Show({});
}

void WayPage::CancelWork() {
  task_.Cancel();
}

}  // namespace orrerix
