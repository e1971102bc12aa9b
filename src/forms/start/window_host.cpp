// SPDX-License-Identifier: MIT
#include "forms/start/window_host.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "forms/controls/form_geometry.h"
#include "platform/tick_count.h"
#include "platform/wide_registers.h"

namespace orrerix {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).remove('\r');
}

}  // namespace

WindowHost::WindowHost(QWidget& form, ImportScreen& screen, MessageBoxes& messages, ErrorLog& log,
                       const MemoryStatus& start, bool debugging, const LanguageChoice& choice)
    : form_(form),
      screen_(screen),
      messages_(messages),
      log_(log),
      start_(start),
      debugging_(debugging),
      choice_(choice) {}

void WindowHost::ShowText(std::string_view text) {
  screen_.ImportText().setPlainText(Text(text));
}

void WindowHost::AppendText(std::string_view text) {
  screen_.ImportText().moveCursor(QTextCursor::End);
  screen_.ImportText().insertPlainText(Text(text));
}

void WindowHost::ProgressIt(std::int32_t maximum, std::int32_t value,
                            const ImportProgress& progress) {
  screen_.Memory().MemoryUpdate(log_, start_, OuterWidth(form_), IsMinimised());
  form_.setWindowTitle(QString::fromStdString(ProgressText(maximum, value, progress)));
  if (!IsMinimised()) screen_.ShowProgress(maximum, value, progress);
  Yield();
}

void WindowHost::Yield() {
  QCoreApplication::processEvents();
  ClearWideRegisters();
  if (ended_) throw ImportEnded{};
}

void WindowHost::Pause(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  if (ended_) throw ImportEnded{};
}

std::uint32_t WindowHost::TickCount() {
  return GetTickCount();
}

}  // namespace orrerix
