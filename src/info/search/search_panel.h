// SPDX-License-Identifier: MIT
// The search panel on the map: what it shows, and what its keys and clicks do.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "info/search/search.h"
#include "map/redraw.h"

namespace orrerix {

// Design values of the panel, twips.
inline constexpr int kSearchFrameWidth = 4200;
inline constexpr int kSearchListTop = 600;

enum class SearchControl { None, Text, SubSearch, List };

enum class SearchColumn { Name, System, Price };

struct SearchSorting {
  SearchColumn By = SearchColumn::Name;
  bool Descending = false;

  bool operator==(const SearchSorting&) const = default;
};

// A list with its selected row.
struct SearchList {
  std::vector<SearchRow> Rows;
  std::optional<std::size_t> Selected;
  std::vector<SearchDetail> Details = {};               // of the rows, in their order
  std::optional<SearchSorting> Sorting = std::nullopt;  // none: in the order of the search

  bool operator==(const SearchList&) const = default;
};

// What the window does after an event of the panel, in this order.
struct SearchAnswer {
  std::optional<ControlList> InfoBox;  // the large box, empty to hide it; none: leave it
  SearchControl Focus = SearchControl::None;
  std::optional<std::string> Jump;  // nickname of the place to go to; the panel has closed
};

// What an event may look at.
struct SearchScope {
  Universe& Data;
  const Wording& Words;
  const TextMeasure& Measure;  // of the info box's font
  const MapDrawing& Drawing;
};

// The panel's state. Two lists: places alone fill the lower one, all other searches list what they
// find in the upper one and where it is to be had in the lower.
class SearchPanel {
 public:
  // A click on one of the icons: opens the panel with everything of that type.
  SearchAnswer Open(const SearchScope& scope, SearchType type);

  // The text has changed.
  SearchAnswer SetText(const SearchScope& scope, std::string text);

  // A click on the head of a column: sorts that list by it, the next time the other way round, then
  // as found again. Rows without a value come last either way. What a search that follows finds is
  // sorted in the same way, until the panel is opened again.
  SearchAnswer Sort(const SearchScope& scope, SearchControl list, SearchColumn column);

  // The columns that a list has.
  std::vector<SearchColumn> ColumnsOf(SearchControl list) const;

  // A row was chosen. One beyond the list changes nothing.
  SearchAnswer SelectSubSearch(const SearchScope& scope, std::size_t row);
  void SelectList(std::size_t row);

  // Keys up, down and enter. In the text box up and down move through the list that the text
  // fills, and enter goes on to the places or jumps; in the lists enter does that.
  SearchAnswer MoveSelection(const SearchScope& scope, int by);
  SearchAnswer EnterInText();
  SearchAnswer EnterInSubSearch();
  SearchAnswer EnterInList();

  // The close button.
  SearchAnswer Close();

  bool Visible() const { return visible_; }
  SearchType Type() const { return type_; }
  const std::string& Text() const { return text_; }
  const SearchList& SubSearch() const { return subSearch_; }
  const SearchList& List() const { return list_; }
  bool SubSearchVisible() const { return subSearchVisible_; }
  bool TextVisible() const { return textVisible_; }

  // Places in twips: of the frame on the map, of the rest within the frame.
  const TwipRect& Frame() const { return frame_; }
  const TwipRect& TextBox() const { return textBox_; }
  const TwipRect& SubSearchBox() const { return subSearchBox_; }
  const TwipRect& ListBox() const { return listBox_; }

 private:
  SearchAnswer Refresh(const SearchScope& scope);
  void FillPlaces(const SearchScope& scope);
  void PlaceList(double top);

  bool visible_ = false;
  SearchType type_ = SearchType::Place;
  std::string text_;
  SearchList subSearch_;
  SearchList list_;
  bool subSearchVisible_ = false;
  bool textVisible_ = true;
  TwipRect frame_;
  TwipRect textBox_;
  TwipRect subSearchBox_;
  TwipRect listBox_;
};

}  // namespace orrerix
