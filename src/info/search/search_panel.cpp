// SPDX-License-Identifier: MIT
#include "info/search/search_panel.h"

#include <algorithm>
#include <utility>

#include "db/values/text.h"
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

bool IsBefore(const DetailedRow& left, const DetailedRow& right, const SearchSorting& sorting) {
  const auto inOrder = [&](const auto& first, const auto& second) {
    return sorting.Descending ? second < first : first < second;
  };
  switch (sorting.By) {
    case SearchColumn::Name:
      return inOrder(FoldAscii(left.Row.RealName), FoldAscii(right.Row.RealName));
    case SearchColumn::System: {
      const std::string& first = left.Detail.System;
      const std::string& second = right.Detail.System;
      if (first.empty() || second.empty()) return !first.empty() && second.empty();
      return inOrder(FoldAscii(first), FoldAscii(second));
    }
    case SearchColumn::Price: {
      const auto& first = left.Detail.Price;
      const auto& second = right.Detail.Price;
      if (!first || !second) return first && !second;
      return inOrder(*first, *second);
    }
  }
  return false;
}

void Fill(SearchList& list, std::vector<DetailedRow> found) {
  if (list.Sorting) {
    std::stable_sort(found.begin(), found.end(), [&](const auto& left, const auto& right) {
      return IsBefore(left, right, *list.Sorting);
    });
  }
  list.Rows.clear();
  list.Details.clear();
  for (DetailedRow& row : found) {
    list.Rows.push_back(std::move(row.Row));
    list.Details.push_back(std::move(row.Detail));
  }
}

// Ascending, descending, as found.
std::optional<SearchSorting> NextSorting(const std::optional<SearchSorting>& now,
                                         SearchColumn column) {
  if (!now || now->By != column) return SearchSorting{column, false};
  if (now->Descending) return std::nullopt;
  return SearchSorting{column, true};
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
  subSearch_.Sorting = std::nullopt;
  list_.Sorting = std::nullopt;
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
    FillPlaces(scope);
    return {};
  }
  Fill(subSearch_, SearchInDetail(scope.Data, type_, text_));
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
  FillPlaces(scope);
  return answer;
}

// The lower list: what the text finds, or who has the chosen row of the upper list.
void SearchPanel::FillPlaces(const SearchScope& scope) {
  if (type_ == SearchType::Place) {
    Fill(list_, SearchInDetail(scope.Data, type_, text_));
  } else if (subSearch_.Selected) {
    Fill(list_, SellersInDetail(scope.Data, type_, subSearch_.Rows[*subSearch_.Selected]));
  }
  SelectFirst(list_);
}

SearchAnswer SearchPanel::Sort(const SearchScope& scope, SearchControl list, SearchColumn column) {
  const bool isUpper = list == SearchControl::SubSearch;
  SearchList& sorted = isUpper ? subSearch_ : list_;
  sorted.Sorting = NextSorting(sorted.Sorting, column);
  if (isUpper) return Refresh(scope);
  FillPlaces(scope);
  return {};
}

std::vector<SearchColumn> SearchPanel::ColumnsOf(SearchControl list) const {
  if (type_ == SearchType::Place) return {SearchColumn::Name, SearchColumn::System};
  if (list == SearchControl::List) {
    return {SearchColumn::Name, SearchColumn::System, SearchColumn::Price};
  }
  if (type_ == SearchType::Bribe) return {SearchColumn::Name};
  return {SearchColumn::Name, SearchColumn::Price};
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
