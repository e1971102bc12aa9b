// SPDX-License-Identifier: MIT
#include "forms/error_log_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTextCursor>
#include <QTimer>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/plated_label.h"
#include "picture/form_font.h"
#include "shell/error_log_layout.h"

namespace orrerix {
namespace {

constexpr int kClientWidth = 7335;
constexpr int kClientHeight = 5655;
constexpr int kHeadingFont = 8;
constexpr int kLogFont = 9;
constexpr const char* kAuthorsMail = "authors@orrerix.invalid";

void SetColors(QWidget& widget, QColor ground, QColor letters) {
  QPalette palette = widget.palette();
  palette.setColor(widget.backgroundRole(), ground);
  palette.setColor(widget.foregroundRole(), letters);
  widget.setPalette(palette);
}

}  // namespace

ErrorLogWindow::ErrorLogWindow(ErrorLog& log, std::function<bool()> importing,
                               const LanguageChoice& choice)
    : log_(log),
      importing_(std::move(importing)),
      choice_(choice),
      dataHeading_(AddHeading(0, QColor(255, 255, 0))),
      dataLog_(AddLog("DataLog", QColor(255, 255, 128), QPlainTextEdit::WidgetWidth)),
      programHeading_(AddHeading(1, QColor(255, 0, 0))),
      programLog_(AddLog("ProgramLog", QColor(255, 128, 0), QPlainTextEdit::NoWrap)) {
  setObjectName("ErrorLog");
  ShowCaptions();
  // Opens beside the main window without taking its focus.
  setAttribute(Qt::WA_ShowWithoutActivating);
  resize(PixelRect(0, 0, kClientWidth, kClientHeight).size());
  programHeading_->hide();
  programLog_.Box->hide();
  log_.SetView(this);
}

ErrorLogWindow::~ErrorLogWindow() {
  log_.SetView(nullptr);
}

// The captions in the language that is in use when the window comes up.
void ErrorLogWindow::ShowCaptions() {
  const Language language = choice_.Current;
  setWindowTitle(CaptionIn(language, TextId::ErrorLogTitle));
  dataHeading_->setText(CaptionIn(language, TextId::DataLogHead));
  programHeading_->setText(
      QString::fromStdString(FormatIn(language, TextId::ProgramLogHead, kAuthorsMail)));
  dataLog_.Box->setAccessibleName(CaptionIn(language, TextId::DataLogName));
  programLog_.Box->setAccessibleName(CaptionIn(language, TextId::ProgramLogName));
}

QLabel* ErrorLogWindow::AddHeading(int index, QColor letters) {
  auto* label = new PlatedLabel({}, this);
  label->setObjectName(QStringLiteral("Label1_%1").arg(index));
  QFont font = FormFont(kHeadingFont);
  font.setBold(true);
  label->setFont(font);
  label->setAutoFillBackground(true);
  SetColors(*label, QColor(0, 0, 192), letters);
  return label;
}

ErrorLogWindow::Log ErrorLogWindow::AddLog(const char* name, QColor letters,
                                           QPlainTextEdit::LineWrapMode wrap) {
  auto* box = new QPlainTextEdit(this);
  box->setObjectName(name);
  box->setFont(FormFont(kLogFont));
  box->setReadOnly(true);
  box->setUndoRedoEnabled(false);
  box->setLineWrapMode(wrap);
  QPalette palette = box->palette();
  palette.setColor(QPalette::Base, QColor(0, 0, 128));
  palette.setColor(QPalette::Text, letters);
  box->setPalette(palette);
  return {box};
}

void ErrorLogWindow::ShowWindow() {
  if (!isVisible()) ShowCaptions();
  if (isHidden()) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.bottomRight() - rect().bottomRight());
  }
  setWindowIcon(QGuiApplication::windowIcon());
  ShowTexts();
  show();
}

void ErrorLogWindow::ShowText(Log& log, const std::string& text) {
  if (text.size() == log.Shown) return;
  QTextCursor end(log.Box->document());
  end.movePosition(QTextCursor::End);
  end.insertText(
      QString::fromUtf8(text.data() + log.Shown, static_cast<qsizetype>(text.size() - log.Shown))
          .remove('\r'));
  log.Shown = text.size();
  log.Box->moveCursor(QTextCursor::End);
  // The last entry is read from the beginning of its lines.
  log.Box->horizontalScrollBar()->setValue(0);
}

void ErrorLogWindow::ShowTexts() {
  showsQueued_ = false;
  if (std::exchange(loads_, log_.Loads()) != loads_) {
    for (Log* log : {&dataLog_, &programLog_}) {
      log->Box->clear();
      log->Shown = 0;
    }
  }
  ShowText(dataLog_, log_.DataLog());
  ShowText(programLog_, log_.ProgramLog());
  LayOut();
}

void ErrorLogWindow::TextsChanged() {
  if (std::exchange(showsQueued_, true)) return;
  QTimer::singleShot(0, this, [this] { ShowTexts(); });
}

// If the end of the log was in sight, it stays in sight.
void ErrorLogWindow::PlaceLog(Log& log, const QRect& place) {
  QTextCursor end(log.Box->document());
  end.movePosition(QTextCursor::End);
  const bool endSeen = log.Box->viewport()->rect().intersects(log.Box->cursorRect(end));
  log.Box->setGeometry(place);
  QScrollBar& bar = *log.Box->verticalScrollBar();
  if (endSeen) bar.setValue(bar.maximum());
}

void ErrorLogWindow::LayOut() {
  const ErrorLogLayout layout =
      LayOutErrorLog(OuterWidth(*this), OuterHeight(*this), log_.HasProgramError());
  dataHeading_->setGeometry(PixelRect(layout.DataHeading));
  PlaceLog(dataLog_, PixelRect(layout.DataLog));
  programHeading_->setGeometry(PixelRect(layout.ProgramHeading));
  PlaceLog(programLog_, PixelRect(layout.ProgramLog));
  programHeading_->setVisible(layout.LowerHalfVisible);
  programLog_.Box->setVisible(layout.LowerHalfVisible);
}

void ErrorLogWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void ErrorLogWindow::closeEvent(QCloseEvent* event) {
  log_.QueryUnload(importing_());
  event->accept();
}

}  // namespace orrerix
