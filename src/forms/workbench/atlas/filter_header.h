// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <functional>
#include <vector>

namespace orrerix {

// The head of a table with a field for typing below each column. The fields move with their
// columns; one that gets the focus is scrolled into view.
class FilterHeader : public QHeaderView {
 public:
  explicit FilterHeader(QTableView* view);

  struct Field {
    QString Name;      // of the object
    QString Readable;  // for screen readers
    QString ToolTip;
    QString Hint;  // shown while it is empty
  };

  // One field for each column, all of them empty.
  void SetFields(const std::vector<Field>& fields);

  // Called after the player has changed a field.
  std::function<void()> OnEdited;

  QStringList Texts() const;

  // Those that are left out are empty.
  void SetTexts(const QStringList& texts);

  // Marks a field with a symbol and says in its tool tip why; an empty text takes the mark away.
  void MarkWrong(int column, const QString& why);

  QSize sizeHint() const override;

 protected:
  void updateGeometries() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Edit {
    QLineEdit* Line;
    QAction* Warning;
    QString ToolTip;
  };
  int FieldHeight() const;
  void AddField(const Field& field);
  void PlaceFields();
  void Reveal(int column);

  QTableView& view_;
  std::vector<Edit> edits_;
};

}  // namespace orrerix
