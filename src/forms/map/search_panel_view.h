// SPDX-License-Identifier: MIT
// The search panel on the map: its controls and its events.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <array>
#include <vector>

#include "forms/controls/column_list.h"
#include "info/search/search_panel.h"
#include "shell/language.h"

namespace orrerix {

// What the user does in the search panel.
class SearchEvents {
 public:
  virtual ~SearchEvents() = default;
  virtual void ChangeSearchText(const std::string& text) = 0;
  virtual void ChooseFound(std::size_t row) = 0;
  virtual void ChoosePlace(std::size_t row) = 0;
  virtual void GoToPlace() = 0;
  virtual void CloseSearch() = 0;
  virtual void FindGood() = 0;
  virtual void SortList(SearchControl list, SearchColumn column) = 0;

  // Keys of the three controls. True if the key means nothing else.
  virtual bool MoveKey(int by) = 0;
  virtual void EnterKey(SearchControl in) = 0;
};

// The search panel's controls on the map: they show a SearchPanel and report what the user does.
class SearchPanelView : public QFrame {
 public:
  // `events` must outlive this. While the panel is seen the Escape key closes it, wherever on its
  // window the focus is.
  SearchPanelView(SearchEvents& events, QWidget* map);

  // Shows the panel as it is now, with captions in the language in use; hides it if it is closed.
  void Show(const SearchPanel& panel, TextSource& texts);
  void Focus(SearchControl control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowCaptions(TextSource& texts);
  void PlaceGoods(int height);
  ColumnList* AddList(ControlId id, SearchControl control);
  void ShowColumns(ColumnList& list, const SearchPanel& panel, SearchControl control,
                   TextSource& texts);
  void Fill(ColumnList& list, SearchList& shown, const SearchList& wanted,
            const std::vector<SearchColumn>& columns);
  bool KeyPress(QObject* control, int key);

  SearchEvents& events_;
  QLabel* caption_;
  QLineEdit* text_;
  ColumnList* subSearch_;
  ColumnList* list_;
  QToolButton* close_;
  QToolButton* goods_;
  SearchList shownSubSearch_;
  SearchList shownList_;
  std::array<std::vector<SearchColumn>, 2> columns_;  // of the upper and the lower list
};

}  // namespace orrerix
