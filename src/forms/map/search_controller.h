// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/map/info_box.h"
#include "forms/map/map_controller.h"
#include "forms/map/map_host.h"
#include "forms/map/search_panel_view.h"

namespace orrerix {

// The search on the map: the panel, the large info box beside it, and the jump to what was found.
class SearchController : private SearchEvents {
 public:
  // All of these must outlive this; the widgets belong to the map's frame.
  SearchController(MapScreen& screen, MapHost& form, MapController& controller, ErrorLog& log,
                   LanguageFile& language);
  ~SearchController() override;
  SearchController(const SearchController&) = delete;
  SearchController& operator=(const SearchController&) = delete;

  // A click on one of the first four tool icons.
  void OpenSearch(SearchType type);

  // Shows a place of the map and opens its window. Does nothing if the map does not have it.
  void Jump(const std::string& nickname);

  bool Visible() const { return panel_.Visible(); }

  // What stands in the text box; empty while the panel is closed.
  std::string Text() const { return Visible() ? panel_.Text() : std::string(); }

  // Called with that text by the panel's entry for commodities, which the panel itself does not
  // list.
  std::function<void(const std::string&)> OnFindGood;

 private:
  void ChangeSearchText(const std::string& text) override;
  void ChooseFound(std::size_t row) override;
  void ChoosePlace(std::size_t row) override;
  void GoToPlace() override;
  void CloseSearch() override;
  void FindGood() override;
  void SortList(SearchControl list, SearchColumn column) override;
  bool MoveKey(int by) override;
  void EnterKey(SearchControl in) override;

  // Runs an event that reads the universe, and does what it asks.
  template <typename Event>
  SearchAnswer Ask(const char* source, const std::string& info, const Event& event);
  void Follow(SearchAnswer answer);
  void ShowInfo(ControlList box);

  MapScreen& screen_;
  MapHost& form_;
  MapController& controller_;
  ErrorLog& log_;
  LanguageFile& language_;
  QtTextMeasure measure_{FixedFont};
  SearchPanel panel_;
  SearchPanelView* view_;
  InfoBox* infoBox_;
};

}  // namespace orrerix
