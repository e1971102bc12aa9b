// SPDX-License-Identifier: MIT
#include "forms/map/search_controller.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "forms/controls/locale_separators.h"
#include "shell/routine.h"

namespace orrerix {

SearchController::SearchController(MapScreen& screen, MapHost& form, MapController& controller,
                                   ErrorLog& log, LanguageFile& language)
    : screen_(screen),
      form_(form),
      controller_(controller),
      log_(log),
      language_(language),
      view_(new SearchPanelView(*this, &screen.Frame())),
      infoBox_(new InfoBox(QString::fromStdString(language.Text(TextId::Information)),
                           &screen.Frame())) {}

SearchController::~SearchController() = default;

template <typename Event>
SearchAnswer SearchController::Ask(const char* source, const std::string& info,
                                   const Event& event) {
  SearchAnswer answer;
  Routine routine(log_, source, info);
  routine.Run([&] {
    Universe universe = form_.OpenUniverse(routine);
    const Wording words{language_, LocaleSigns()};
    answer = event(SearchScope{universe, words, measure_, screen_.Drawing()});
  });
  return answer;
}

void SearchController::OpenSearch(SearchType type) {
  Follow(Ask("OrrerixMain.StationSearch_Click", fmt::format("Index: {}", static_cast<int>(type)),
             [&](const SearchScope& scope) { return panel_.Open(scope, type); }));
}

void SearchController::ChangeSearchText(const std::string& text) {
  Follow(Ask("OrrerixMain.StSearchText_Change", "",
             [&](const SearchScope& scope) { return panel_.SetText(scope, text); }));
}

void SearchController::ChooseFound(std::size_t row) {
  Follow(Ask("OrrerixMain.SubSearch_Click", "",
             [&](const SearchScope& scope) { return panel_.SelectSubSearch(scope, row); }));
}

void SearchController::ChoosePlace(std::size_t row) {
  panel_.SelectList(row);
}

void SearchController::GoToPlace() {
  Follow(panel_.EnterInList());
}

void SearchController::CloseSearch() {
  Follow(panel_.Close());
  screen_.Frame().setFocus();
}

void SearchController::FindGood() {
  if (OnFindGood) OnFindGood(panel_.Text());
}

void SearchController::SortList(SearchControl list, SearchColumn column) {
  Follow(Ask("OrrerixMain.StSearchText_Change", "",
             [&](const SearchScope& scope) { return panel_.Sort(scope, list, column); }));
}

bool SearchController::MoveKey(int by) {
  SearchAnswer answer = Ask("OrrerixMain.StSearchText_KeyDown", "", [&](const SearchScope& scope) {
    return panel_.MoveSelection(scope, by);
  });
  Follow(std::move(answer));
  return true;
}

void SearchController::EnterKey(SearchControl in) {
  switch (in) {
    case SearchControl::Text:
      return Follow(panel_.EnterInText());
    case SearchControl::SubSearch:
      return Follow(panel_.EnterInSubSearch());
    case SearchControl::List:
      return Follow(panel_.EnterInList());
    case SearchControl::None:
      return;
  }
}

void SearchController::Follow(SearchAnswer answer) {
  view_->Show(panel_, language_);
  if (answer.InfoBox) ShowInfo(std::move(*answer.InfoBox));
  view_->Focus(answer.Focus);
  if (answer.Jump) Jump(*answer.Jump);
}

void SearchController::ShowInfo(ControlList box) {
  infoBox_->Show(box);
  if (box.empty()) return controller_.Box().Hide();
  controller_.Box().ShowElsewhere(std::move(box));
}

void SearchController::Jump(const std::string& nickname) {
  Routine routine(log_, "OrrerixMain.StSearchList_DblClick");
  routine.Run([&] {
    Universe universe = form_.OpenUniverse(routine);
    const auto target = JumpTargetOf(routine, universe, nickname);
    if (!target) return;
    const MapCell& cell = target->Cell;
    const ZoomRectangle square{cell.X, cell.Y, cell.X, cell.Y};
    if (!square.IsValid())
      return routine.Fail(RuntimeFailure(failure_number::kSubscriptOutOfRange));
    if (controller_.PushZoomStack(square)) form_.Redraw();
    const ControlList& controls = screen_.Drawing().Controls;
    const auto icon = std::find_if(controls.begin(), controls.end(), [&](const Control& control) {
      return control.Id == ControlId::MapIcon && IconText(control) == target->Nickname;
    });
    // The move may fold the options, which redraws the map.
    const bool found = icon != controls.end();
    const int index = found ? icon->Index.value_or(0) : 0;
    controller_.MoveOverMap(PointerButton::None, 0, 0);
    if (!found) return routine.Fail(RuntimeFailure(failure_number::kSubscriptOutOfRange));
    controller_.HoverIcon(index);
    controller_.OpenStationOf(index);
    screen_.Frame().setFocus();
  });
}

}  // namespace orrerix
