// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTableWidget>
#include <filesystem>
#include <functional>

#include "forms/workbench/workbench_page.h"
#include "map/bookmarks.h"

namespace orrerix {

// Bookmarks with notes: they lead back to what the map showed. Each change is stored at once.
class BookmarksPage : public WorkbenchPage {
 public:
  struct Actions {
    std::function<Bookmark()> Current;  // of what the map shows
    std::function<void(const Bookmark&)> Show;
  };

  // `choice` outlives this. The file need not be there.
  BookmarksPage(const LanguageChoice& choice, std::filesystem::path file, Actions actions);

  // Adds one and chooses it, for a note.
  void Add(const Bookmark& mark);

  // Adds the bookmarks of a file; those that are there already are not added again.
  void TakeFrom(const std::filesystem::path& file);

  // Writes all bookmarks to a file. False if it cannot be written.
  bool SaveTo(const std::filesystem::path& file) const { return SaveBookmarks(file, bookmarks_); }

 private:
  QString Caption(TextId id) const;
  QString FileFilter() const;
  QWidget* MakeButtons();
  void ShowRows();
  void Edit(int row, int column);
  void ShowChosen();
  void DeleteChosen();
  void Store();
  void Export();
  void Import();

  const LanguageChoice& choice_;
  std::filesystem::path file_;
  Actions actions_;
  Bookmarks bookmarks_;
  QTableWidget* rows_;
  QLabel* state_;
};

}  // namespace orrerix
