// SPDX-License-Identifier: MIT
// Printing of the map.
#include <QCoreApplication>
#include <QScreen>

#include "forms/controls/form_geometry.h"
#include "forms/orrerix_main.h"
#include "forms/print_form.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {

// Outer size of the form that the map is drawn for, twips.
QSize OrrerixMain::DrawnSize() const {
  if (phase_ != Phase::Printing) return {OuterWidth(*this), OuterHeight(*this)};
  const int side = static_cast<int>(Twips(screen()->geometry().height()));
  return {side, side};
}

void OrrerixMain::PrintTheMap() {
  if (phase_ != Phase::Map) return;
  const PrinterChoice choice = parts_.Printing.Choose();
  if (choice.Answer == PrinterAnswer::None) return TellThatThereIsNoPrinter();
  if (choice.Answer == PrinterAnswer::GivenUp) return;
  const auto yield = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
  Routine routine(parts_.Log, "OrrerixMain.PrintTheMap");
  routine.Run([&] {
    const Qt::WindowStates state = windowState();
    const QRect place = state == Qt::WindowNoState ? geometry() : normalGeometry();
    setWindowState(Qt::WindowNoState);
    map_.State().PrintMode = true;
    const QRect screenRect = screen()->geometry();
    phase_ = Phase::Printing;
    SetOuterGeometry({screenRect.topLeft(), QSize(screenRect.height(), screenRect.height())});
    Redraw();
    yield();
    routine.Try([&] {
      const std::optional<PrintTarget> target =
          choice.Answer == PrinterAnswer::Chosen ? choice.Target : parts_.Printing.DefaultPrinter();
      PrintForm(*this, map_.Frame(), target, parts_.Speech.Current);
    });
    yield();
    map_.State().PrintMode = false;
    phase_ = Phase::Map;
    setGeometry(place);
    setWindowState(state);
    Redraw();
  });
  phase_ = Phase::Map;
}

void OrrerixMain::TellThatThereIsNoPrinter() {
  parts_.Messages.Show({std::string(TextIn(parts_.Speech.Current, TextId::NoPrinterOnDesktop)),
                        std::string(TextIn(parts_.Speech.Current, TextId::PrintMap)),
                        MessageButtons::Ok, MessageIcon::Exclamation});
}

}  // namespace orrerix
