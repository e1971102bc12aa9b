// SPDX-License-Identifier: MIT
#include "info/search/search_panel.h"

#include <algorithm>
#include <utility>

#include "info/boxes/text_info_box.h"
#include "map/grid/numeric.h"

namespace orrerix {
namespace {

constexpr int kFrameTop = 200;
constexpr int kFrameRight = 100;  // between the frame and the map's right edge
constexpr int kFrameBelow = 300;  // what it leaves of the map's height
constexpr int kListBelow = 100;   // between the lists, and below them
constexpr int kSide = 120;        // left and right of what stands in the frame
constexpr int kTextBoxTop = 180;
constexpr int kTextHeight = 345;
constexpr int kCloseWidth = 360;  // room beside the text box

void SelectFirst(SearchList& list) {
  list.Selected = list.Rows.empty() ? std::nullopt : std::optional<std::size_t>(0);
}

// A row up or down from the selected one, stopping at the ends.
std::optional<std::size_t> Neighbour(const SearchList& list, int by) {
  if (list.Rows.empty()) return std::nullopt;
  const auto last = static_cast<std::ptrdiff_t>(list.Rows.size()) - 1;
  const auto from = list.Selected ? static_cast<std::ptrdiff_t>(*list.Selected) : 0;
  return static_cast<std::size_t>(std::min(last, std::max<std::ptrdiff_t>(0, from + by)));
}

}  // namespace

SearchAnswer SearchPanel::Open(const SearchScope& scope, SearchType type) {
  const TwipRect& map = scope.Drawing.Frame;
  frame_ = {map.Width - kSearchFrameWidth - kFrameRight, kFrameTop, kSearchFrameWidth,
            NotBelowZero(map.Height - kFrameBelow)};
  textBox_ = {kSide, kTextBoxTop, kSearchFrameWidth - 2 * kSide - kCloseWidth, kTextHeight};
  subSearchBox_ = {kSide, kSearchListTop, kSearchFrameWidth - 2 * kSide, 0};
  PlaceList(kSearchListTop);
  visible_ = true;
  type_ = type;
  subSearchVisible_ = true;
  textVisible_ = true;
  SearchAnswer answer = SetText(scope, "");
  answer.Focus = SearchControl::Text;
  return answer;
}

SearchAnswer SearchPanel::SetText(const SearchScope& scope, std::string text) {
  text_ = std::move(text);
  return Refresh(scope);
}

SearchAnswer SearchPanel::Refresh(const SearchScope& scope) {
  if (type_ == SearchType::Place) {
    list_.Rows = Search(scope.Data, type_, text_);
    SelectFirst(list_);
    return {};
  }
  subSearch_.Rows = Search(scope.Data, type_, text_);
  subSearch_.Selected = std::nullopt;
  SearchAnswer answer = SelectSubSearch(scope, 0);
  subSearchBox_.Height = scope.Drawing.Frame.Height / 2;
  PlaceList(subSearchBox_.Bottom() + kListBelow);
  return answer;
}

SearchAnswer SearchPanel::SelectSubSearch(const SearchScope& scope, std::size_t row) {
  if (row >= subSearch_.Rows.size()) return {};
  subSearch_.Selected = row;
  const SearchRow& chosen = subSearch_.Rows[row];
  SearchAnswer answer;
  if (const auto info = InfoTypeOf(type_)) {
    answer.InfoBox = ShowInfoTextType(scope.Data, scope.Words, scope.Measure, scope.Drawing,
                                      chosen.Nickname, *info);
  }
  list_.Rows = SellersOf(scope.Data, type_, chosen);
  SelectFirst(list_);
  return answer;
}

void SearchPanel::SelectList(std::size_t row) {
  if (row < list_.Rows.size()) list_.Selected = row;
}

SearchAnswer SearchPanel::MoveSelection(const SearchScope& scope, int by) {
  SearchAnswer answer;
  if (type_ == SearchType::Place) {
    if (const auto row = Neighbour(list_, by)) SelectList(*row);
  } else if (const auto row = Neighbour(subSearch_, by); row && row != subSearch_.Selected) {
    answer = SelectSubSearch(scope, *row);
  }
  return answer;
}

SearchAnswer SearchPanel::EnterInText() {
  if (!subSearchVisible_ || type_ == SearchType::Place || list_.Rows.empty()) {
    return EnterInList();
  }
  subSearchVisible_ = false;
  listBox_.Height += listBox_.Top - textBox_.Top;
  listBox_.Top = textBox_.Top;
  textVisible_ = false;
  SearchAnswer answer;
  answer.Focus = SearchControl::List;
  return answer;
}

SearchAnswer SearchPanel::EnterInSubSearch() {
  SearchAnswer answer;
  if (!list_.Rows.empty()) answer.Focus = SearchControl::List;
  return answer;
}

SearchAnswer SearchPanel::EnterInList() {
  if (list_.Rows.empty() || !list_.Selected) return {};
  SearchAnswer answer = Close();
  answer.Jump = list_.Rows[*list_.Selected].Nickname;
  return answer;
}

SearchAnswer SearchPanel::Close() {
  visible_ = false;
  SearchAnswer answer;
  answer.InfoBox = ControlList{};
  return answer;
}

void SearchPanel::PlaceList(double top) {
  listBox_ = {kSide, top, kSearchFrameWidth - 2 * kSide,
              NotBelowZero(frame_.Height - top - kListBelow)};
}

}  // namespace orrerix
