// SPDX-License-Identifier: MIT
#include "forms/program_run.h"

#include <QApplication>
#include <QScreen>

#include "db/values/number_text.h"
#include "forms/start/spoiler.h"
#include "map/game_sounds.h"
#include "online/news_loader.h"
#include "online/web_pages.h"
#include "shell/language_texts.h"
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
      loading_(parts.Pictures, parts.Speech),
      errorLog_(
          parts.Log, [this] { return main_ && main_->Importing(); }, parts.Speech) {
  loading_.OnGotFocus = [this] { GotFocus(); };
}

ProgramRun::~ProgramRun() = default;

void ProgramRun::Start() {
  loading_.show();
}

void ProgramRun::GotFocus() {
  memStart_ = GlobalMemoryStatus();
  Yield();
  Routine routine(parts_.Log, "loading.Form_GotFocus",
                  "While loading News via MSINET.OCX and starting OX.");
  enum class Next { ShowMain, Leave } next = Next::ShowMain;
  routine.Run([&] {
    bool hasEngine = true;
    routine.Try([&] { hasEngine = CheckEngine(); });
    if (!hasEngine) {
      next = Next::Leave;
      return;
    }
    Yield();
    routine.Try([&] { ReadLanguage(); });
    std::string news;
    routine.Try([&] { news = LoadNews(); });
    bool goesOn = true;
    routine.Try([&] { goesOn = LoadMain(); });
    if (!goesOn) next = Next::Leave;
    if (goesOn && IsNewsFile(news)) main_->ShowNews(news);
  });
  if (next == Next::Leave) return EndAtOnce();
  loading_.hide();
  if (main_) main_->ShowLoaded();
  UnloadStartForms();
}

bool ProgramRun::CheckEngine() {
  format_ = CheckJetDatabase(parts_.Paths.ApplicationFolder);
  if (format_) return true;
  parts_.Messages.Show({std::string(TextIn(parts_.Speech.Current, TextId::EngineProblem)),
                        "FL Orrerix", MessageButtons::Ok, MessageIcon::Critical});
  parts_.Links.Open(
      "https://www.microsoft.com/library/default.asp?url=/downloads/list/dataaccess.asp");
  return false;
}

// Read first, so that even the first question is in the chosen language.
void ProgramRun::ReadLanguage() {
  settings_.emplace(parts_.Log, parts_.Paths.ApplicationFolder, *format_);
  const auto number = ToInteger(Val(settings_->ReadSetting("LANG")));
  if (number) parts_.Speech.Current = static_cast<Language>(*number);
}

// The news come before the main form, which shows them.
std::string ProgramRun::LoadNews() {
  const StartPaths& paths = parts_.Paths;
  NewsLoader loader(parts_.Log, parts_.Web, parts_.Messages, paths.NewsAddress,
                    paths.ApplicationFolder, parts_.Speech.Current);
  return loader.Fetch();
}

bool ProgramRun::LoadMain() {
  const auto& folder = parts_.Paths.ApplicationFolder;
  language_.emplace(parts_.Log, folder, *format_, parts_.Speech);
  main_ = std::make_unique<OrrerixMain>(parts_, *settings_, *language_, memStart_, *format_);
  main_->OnClosed = [this] { CloseProgram(); };
  main_->OnFirstMap = [this] { return ShowSpoiler(); };
  main_->OnUpdate = [this](const News& news) { ShowUpdate(news); };
  return main_->Load();
}

// The warning before the first map. False if the user would rather leave.
bool ProgramRun::ShowSpoiler() {
  loading_.hide();
  Spoiler spoiler(ReadSpoilerTexts(main_->Game(), parts_.Speech.Current), parts_.Pictures,
                  parts_.Speech.Current);
  spoiler.OnWarningOff = [this](bool checked) { SetWarningOff(main_->UniverseFile(), checked); };
  spoiler.OnTextClick = [this] {
    PlaySoundfile(parts_.Log, parts_.Sound, main_->Game(), kLinkSound);
    OpenLink(parts_.Links, PageAddress(parts_.Paths.NewsAddress, WebPage::WarningHelp));
  };
  spoiler.setWindowIcon(main_->windowIcon());
  spoiler.setGeometry(main_->screen()->availableGeometry());
  spoiler.setWindowState(Qt::WindowMaximized);
  if (spoiler.exec() == QDialog::Accepted) return true;
  EndAtOnce();
  return false;
}

void ProgramRun::ShowUpdate(const News& news) {
  update_ = std::make_unique<Update>(news.UpdateToolTip, parts_.Pictures, parts_.Speech.Current);
  update_->OnClosed = [this] { main_->ShowMaximised(); };
  update_->OnNoticeClicked = [this] {
    main_->OpenNewsLink(0);
    EndAtOnce();
  };
  update_->setWindowIcon(main_->windowIcon());
  update_->show();
  update_->repaint();
  main_->hide();
}

// Closes all windows in no particular order, and ends the program.
void ProgramRun::EndAtOnce() {
  for (QWidget* form : QApplication::topLevelWidgets()) form->hide();
  parts_.Sound.WaitForEnd();
  OnEnd();
}

void ProgramRun::UnloadStartForms() {
  loading_.close();
}

// Closes all other forms while the start form tells the user about it.
void ProgramRun::CloseProgram() {
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
