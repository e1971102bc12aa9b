// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/filter_header.h"

#include <QAction>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kFieldGap = 1;

}  // namespace

FilterHeader::FilterHeader(QTableView* view) : QHeaderView(Qt::Horizontal, view), view_(*view) {
  setSectionsClickable(true);
  setHighlightSections(false);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Button);
  connect(this, &QHeaderView::sectionResized, this, [this] { PlaceFields(); });
  connect(this, &QHeaderView::sectionMoved, this, [this] { PlaceFields(); });
  connect(view->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { PlaceFields(); });
}

int FilterHeader::FieldHeight() const {
  return edits_.empty() ? 0 : edits_.front().Line->sizeHint().height() + 2 * kFieldGap;
}

QSize FilterHeader::sizeHint() const {
  return QHeaderView::sizeHint() + QSize(0, FieldHeight());
}

// The captions keep the upper part; the fields lie on the margin below it.
void FilterHeader::updateGeometries() {
  setViewportMargins(0, 0, 0, FieldHeight());
  QHeaderView::updateGeometries();
  PlaceFields();
}

void FilterHeader::SetFields(const std::vector<Field>& fields) {
  for (const Edit& edit : edits_) delete edit.Line;
  edits_.clear();
  for (const Field& field : fields) AddField(field);
  for (std::size_t i = 1; i < edits_.size(); ++i) {
    setTabOrder(edits_[i - 1].Line, edits_[i].Line);
  }
  updateGeometries();
}

void FilterHeader::AddField(const Field& field) {
  auto* line = new QLineEdit(this);
  line->setObjectName(field.Name);
  line->setAccessibleName(field.Readable);
  line->setToolTip(PlainToolTip(field.ToolTip));
  line->setPlaceholderText(field.Hint);
  line->installEventFilter(this);
  QAction* warning = line->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                     QLineEdit::TrailingPosition);
  warning->setVisible(false);
  edits_.push_back({line, warning, field.ToolTip});
  connect(line, &QLineEdit::textChanged, this, [this] {
    if (OnEdited) OnEdited();
  });
}

void FilterHeader::PlaceFields() {
  const int height = FieldHeight();
  for (int column = 0; column < std::min(count(), static_cast<int>(edits_.size())); ++column) {
    QLineEdit* line = edits_[static_cast<std::size_t>(column)].Line;
    line->setVisible(sectionSize(column) > 0);
    line->setGeometry(sectionViewportPosition(column) + kFieldGap,
                      viewport()->geometry().bottom() + 1 + kFieldGap,
                      sectionSize(column) - 2 * kFieldGap, height - 2 * kFieldGap);
  }
}

void FilterHeader::Reveal(int column) {
  QScrollBar& bar = *view_.horizontalScrollBar();
  const int left = sectionPosition(column);
  if (left < bar.value()) bar.setValue(left);
  const int overhang = left + sectionSize(column) - view_.viewport()->width();
  if (overhang > bar.value()) bar.setValue(std::min(left, overhang));
}

bool FilterHeader::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto found = std::find_if(edits_.begin(), edits_.end(),
                                    [watched](const Edit& edit) { return edit.Line == watched; });
    if (found != edits_.end()) Reveal(static_cast<int>(found - edits_.begin()));
  }
  return QHeaderView::eventFilter(watched, event);
}

QStringList FilterHeader::Texts() const {
  QStringList texts;
  for (const Edit& edit : edits_) texts.append(edit.Line->text());
  return texts;
}

void FilterHeader::SetTexts(const QStringList& texts) {
  for (std::size_t i = 0; i < edits_.size(); ++i) {
    const QSignalBlocker quiet(edits_[i].Line);
    edits_[i].Line->setText(texts.value(static_cast<int>(i)));
  }
}

void FilterHeader::MarkWrong(int column, const QString& why) {
  const Edit& edit = edits_[static_cast<std::size_t>(column)];
  edit.Warning->setVisible(!why.isEmpty());
  edit.Line->setToolTip(PlainToolTip(why.isEmpty() ? edit.ToolTip : why));
  edit.Line->setAccessibleDescription(why);
}

}  // namespace orrerix
