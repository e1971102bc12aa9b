// SPDX-License-Identifier: MIT
#include "forms/program_run.h"

#include <QApplication>

#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace {

void Yield() {
  QCoreApplication::processEvents();
}

}  // namespace

ProgramRun::ProgramRun(const FormParts& parts)
    : OnEnd([] { QCoreApplication::quit(); }),
      parts_(parts),
      loading_(parts.Pictures),
      errorLog_(parts.Log, [this] { return main_ && main_->Importing(); }) {
  loading_.OnGotFocus = [this] { FormGotFocus(); };
}

ProgramRun::~ProgramRun() = default;

void ProgramRun::Start() {
  loading_.show();
}

void ProgramRun::FormGotFocus() {
  memStart_ = GlobalMemoryStatus();
  Yield();
  if (!CheckEngine()) return OnEnd();
  Yield();
  Routine routine(parts_.Log, "loading.Form_GotFocus",
                  "While loading News via MSINET.OCX and starting OX.");
  routine.Run([&] { LoadNews(); });
  LoadMain();
  loading_.hide();
  ShowMain();
  UnloadStartForms();
}

bool ProgramRun::CheckEngine() {
  format_ = CheckJetDatabase(parts_.Paths.ApplicationFolder);
  if (format_) return true;
  parts_.Messages.Show(
      {"Problem useing MS-JetDatabase (v3 and v4) - Please Update your Windows with any "
       "mdac_typ.exe from Microsoft - Click ok to open the Microsoft-Website.",
       "FL Orrerix", MessageButtons::Ok, MessageIcon::Critical});
  parts_.Links.Open(
      "https://www.microsoft.com/library/default.asp?url=/downloads/list/dataaccess.asp");
  return false;
}

// The news comes before the main form, which shows it; there is none yet.
void ProgramRun::LoadNews() {}

void ProgramRun::LoadMain() {
  const auto& folder = parts_.Paths.ApplicationFolder;
  settings_.emplace(parts_.Log, folder, *format_);
  language_.emplace(parts_.Log, folder, *format_);
  main_ = std::make_unique<OrrerixMain>(parts_, *settings_, *language_, memStart_, *format_);
  main_->OnQueryUnload = [this] { UnloadApp(); };
  main_->OnFirstMap = [this] { ShowSpoiler(); };
  main_->FormLoad();
}

void ProgramRun::ShowMain() {
  main_->ShowMaximised();
}

// The warning before the first map; there is none yet.
void ProgramRun::ShowSpoiler() {}

void ProgramRun::UnloadStartForms() {
  loading_.close();
}

// All other forms go first, with the start form on screen as the notice of it.
void ProgramRun::UnloadApp() {
  loading_.ShowClosing(Yield);
  const QWidgetList forms = QApplication::topLevelWidgets();
  for (QWidget* form : forms) {
    if (form == &loading_ || form == main_.get() || !form->isVisible()) continue;
    form->close();
    Yield();
  }
  if (main_) main_->hide();
  loading_.close();
  OnEnd();
}

}  // namespace orrerix
