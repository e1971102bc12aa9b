// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "forms/info_box.h"
#include "forms/map_form.h"
#include "forms/map_play.h"
#include "forms/search_panel_view.h"

namespace orrerix {

// The search on the map: the panel, the large info box beside it, and the jump to what was found.
class SearchPlay : private SearchEvents {
 public:
  // All of these must outlive this; the widgets belong to the map's frame.
  SearchPlay(MapScreen& screen, MapForm& form, MapPlay& play, ErrorLog& log,
             LanguageFile& language);
  ~SearchPlay() override;
  SearchPlay(const SearchPlay&) = delete;
  SearchPlay& operator=(const SearchPlay&) = delete;

  // A click on one of the first four tool icons.
  void StationSearchClick(SearchType type);

  bool Visible() const { return panel_.Visible(); }

 private:
  void StSearchTextChange(const std::string& text) override;
  void SubSearchClick(std::size_t row) override;
  void StSearchListClick(std::size_t row) override;
  void StSearchListDblClick() override;
  void StSearchCloseClick() override;
  bool MoveKey(int by) override;
  void EnterKey(SearchControl in) override;

  // Runs an event that reads the universe, and does what it asks.
  template <typename Event>
  SearchAnswer Ask(const char* source, const std::string& info, const Event& event);
  void Follow(SearchAnswer answer);
  void ShowInfo(ControlList box);
  void Jump(const std::string& nickname);

  MapScreen& screen_;
  MapForm& form_;
  MapPlay& play_;
  ErrorLog& log_;
  LanguageFile& language_;
  QtTextMeasure measure_{FixedFont};
  SearchPanel panel_;
  SearchPanelView* view_;
  InfoBox* infoBox_;
};

}  // namespace orrerix
