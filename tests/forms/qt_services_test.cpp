// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTimer>
#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// What a user saw of a message box before clicking a button of it.
struct SeenBox {
  QSize Sign;
  QString Text;
  MessageAnswer Answer = MessageAnswer::Abort;
};

SeenBox ShowAndClick(const Message& message, QMessageBox::StandardButton button) {
  SeenBox seen;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen.Sign = box->iconPixmap().deviceIndependentSize().toSize();
    seen.Text = box->text();
    box->button(button)->click();
  });
  seen.Answer = DesktopMessageBoxes().Show(message);
  return seen;
}

TEST(DesktopMessageBoxes, AFailureHasItsSignAndIsAnswered) {
  const SeenBox seen =
      ShowAndClick({"one\r\ntwo", "Orrerix", MessageButtons::OkCancel, MessageIcon::Critical},
                   QMessageBox::Cancel);

  EXPECT_EQ(seen.Sign, QSize(40, 40));
  EXPECT_EQ(seen.Text, "one\ntwo");
  EXPECT_EQ(seen.Answer, MessageAnswer::Cancel);
}

TEST(DesktopMessageBoxes, AWarningHasItsSign) {
  const SeenBox seen =
      ShowAndClick({"text", "Orrerix", MessageButtons::AbortRetryIgnore, MessageIcon::Exclamation},
                   QMessageBox::Retry);

  EXPECT_EQ(seen.Sign, QSize(40, 40));
  EXPECT_EQ(seen.Answer, MessageAnswer::Retry);
}

TEST(DesktopMessageBoxes, APlainMessageHasNone) {
  const SeenBox seen = ShowAndClick({"text", "Orrerix"}, QMessageBox::Ok);

  EXPECT_TRUE(seen.Sign.isEmpty());
  EXPECT_EQ(seen.Answer, MessageAnswer::Ok);
}

// The size of a message box for a failure with a text of so many lines, and what stands in it.
struct LongBox {
  QSize Size;
  QString Text;
  QString Scrolled;
  int ButtonsBottom = 0;
};

LongBox ShowFailure(int lines) {
  Message message{"", "Orrerix", MessageButtons::OkCancel, MessageIcon::Critical, 3};
  for (int i = 0; i < lines; ++i) message.Text += "cargo = " + std::to_string(i) + "\r\n";
  message.Text += "\r\nOK = Resume.\r\nCancel = Abort.";
  LongBox seen;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen.Size = box->size();
    seen.Text = box->text();
    if (auto* text = box->findChild<QPlainTextEdit*>("LongText")) {
      seen.Scrolled = text->toPlainText();
    }
    QAbstractButton* button = box->button(QMessageBox::Ok);
    seen.ButtonsBottom = button->mapTo(box, button->rect().bottomLeft()).y();
    button->click();
  });
  DesktopMessageBoxes().Show(message);
  return seen;
}

TEST(DesktopMessageBoxes, ALongTextScrollsAboveItsQuestion) {
  const LongBox seen = ShowFailure(152);

  EXPECT_TRUE(seen.Scrolled.startsWith("cargo = 0\n"));
  EXPECT_TRUE(seen.Scrolled.contains("cargo = 151"));
  EXPECT_TRUE(seen.Text.endsWith("OK = Resume.\nCancel = Abort."));
  EXPECT_FALSE(seen.Text.contains("cargo"));
  EXPECT_LT(seen.Size.height(), QGuiApplication::primaryScreen()->availableSize().height());
  EXPECT_LT(seen.ButtonsBottom, seen.Size.height());
  EXPECT_GT(seen.ButtonsBottom, 0);
}

TEST(DesktopMessageBoxes, AShortTextDoesNotScroll) {
  const LongBox seen = ShowFailure(5);

  EXPECT_TRUE(seen.Scrolled.isEmpty());
  EXPECT_TRUE(seen.Text.startsWith("cargo = 0\n"));
}

TEST(DesktopMessageBoxes, AUniverseInUseCanBeLeft) {
  const SeenBox seen =
      ShowAndClick({"text", "Orrerix", MessageButtons::RetryLeave, MessageIcon::Exclamation},
                   QMessageBox::Close);

  EXPECT_EQ(seen.Answer, MessageAnswer::Leave);
}

}  // namespace
}  // namespace orrerix
