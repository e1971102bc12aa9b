// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

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

}  // namespace
}  // namespace orrerix
