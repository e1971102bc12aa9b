// SPDX-License-Identifier: MIT
#include "forms/qt_services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QScreen>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/print_form.h"
#include "picture/picture_store.h"

namespace orrerix {
namespace {

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::AbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MessageButtons::RetryLeave:
      return QMessageBox::Retry | QMessageBox::Close;
    case MessageButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

// The drawing of an icon; none for a message without one.
QString FileOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QStringLiteral(":/pictures/signs/critical.svg");
    case MessageIcon::Exclamation:
      return QStringLiteral(":/pictures/signs/exclamation.svg");
    case MessageIcon::None:
      break;
  }
  return {};
}

void ShowSign(QMessageBox& box, MessageIcon icon) {
  constexpr int pixels = 40;
  const QString file = FileOf(icon);
  if (file.isEmpty()) return;
  PictureStore pictures;
  const double ratio = box.devicePixelRatioF();
  QPixmap sign = pictures.Scaled(file, QSize(pixels, pixels) * ratio);
  sign.setDevicePixelRatio(ratio);
  box.setIconPixmap(sign);
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return MessageAnswer::Cancel;
    case QMessageBox::Abort:
      return MessageAnswer::Abort;
    case QMessageBox::Retry:
      return MessageAnswer::Retry;
    case QMessageBox::Close:
      return MessageAnswer::Leave;
    case QMessageBox::Ignore:
      return MessageAnswer::Ignore;
    default:
      return MessageAnswer::Ok;
  }
}

TextId CaptionOf(QMessageBox::StandardButton button) {
  switch (button) {
    case QMessageBox::Cancel:
      return TextId::ButtonCancel;
    case QMessageBox::Abort:
      return TextId::ButtonAbort;
    case QMessageBox::Retry:
      return TextId::ButtonRetry;
    case QMessageBox::Close:
      return TextId::ButtonClose;
    case QMessageBox::Ignore:
      return TextId::ButtonIgnore;
    default:
      return TextId::ButtonOk;
  }
}

// A message in two pieces: what scrolls where it is long, and what always stays in sight.
struct TextPieces {
  QString Body;
  QString Question;
};

TextPieces SplitText(const Message& message) {
  const QString text = QString::fromStdString(message.Text).remove('\r');
  qsizetype question = text.size();
  for (int line = 0; line < message.QuestionLines && question > 0; ++line) {
    question = text.lastIndexOf('\n', question - 1);
  }
  if (message.QuestionLines == 0 || question < 0) return {text, {}};
  return {text.left(question), text.mid(question + 1)};
}

// The box that shows a long text, so many lines of it at most.
QPlainTextEdit* ScrolledText(const QString& text, QSize size) {
  auto* scrolled = new QPlainTextEdit(text);
  scrolled->setObjectName("LongText");
  scrolled->setReadOnly(true);
  scrolled->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  const int frame = 2 * scrolled->frameWidth();
  const int margins = static_cast<int>(2 * scrolled->document()->documentMargin());
  scrolled->setFixedSize(size.width() + frame + margins, size.height() + frame + margins);
  return scrolled;
}

// A text of more lines than a message may have stands in a box of its own, above the question, and
// leaves room for that and the buttons on a small screen.
void ScrollLongText(QMessageBox& box, const Message& message) {
  constexpr int mostLines = 20;
  constexpr int widest = 640;
  constexpr int roomBelow = 220;
  const TextPieces pieces = SplitText(message);
  const QFontMetrics metrics(box.font());
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  const int width = std::min(widest, screen.width() * 2 / 3);
  const int height = metrics
                         .boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                       Qt::TextWordWrap | Qt::TextWrapAnywhere, pieces.Body)
                         .height();
  const int lines = std::min(mostLines, (screen.height() - roomBelow) / metrics.lineSpacing());
  if (height <= lines * metrics.lineSpacing()) return;
  auto* layout = qobject_cast<QGridLayout*>(box.layout());
  if (layout == nullptr) return;
  box.setText(pieces.Question);
  auto* scrolled = ScrolledText(pieces.Body, {width, lines * metrics.lineSpacing()});
  // The rows of the question and the buttons move down by one.
  QList<std::pair<QLayoutItem*, QRect>> items;
  while (layout->count() > 0) {
    int top = 0;
    int left = 0;
    int rows = 0;
    int columns = 0;
    layout->getItemPosition(0, &top, &left, &rows, &columns);
    items.append({layout->takeAt(0), QRect(left, top, columns, rows)});
  }
  layout->addWidget(scrolled, 0, 0, 1, -1);
  for (const auto& [item, place] : items) {
    layout->addItem(item, place.top() + 1, place.left(), place.height(), place.width());
  }
}

}  // namespace

MessageAnswer DesktopMessageBoxes::Show(const Message& message) {
  QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(message.Title),
                  QString::fromStdString(message.Text).remove('\r'), ButtonsOf(message.Buttons),
                  QApplication::activeWindow());
  box.setObjectName("MessageBox");
  ShowSign(box, message.Icon);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setWindowModality(Qt::ApplicationModal);
  for (QAbstractButton* button : box.buttons()) {
    button->setIcon({});
    button->setText(CaptionIn(choice_.Current, CaptionOf(box.standardButton(button))));
  }
  ScrollLongText(box, message);
  return AnswerOf(box.exec());
}

void DesktopLinks::Open(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

// Installed beside the program, or in the folder that it was built in.
void DesktopLinks::OpenManual() {
  for (const char* place : {"../share/doc/orrerix/manual.md", "docs/manual.html", "docs/manual.md",
                            "../docs/manual.md", "../../docs/manual.md"}) {
    const QFileInfo manual(QDir(QCoreApplication::applicationDirPath()), place);
    if (!manual.exists()) continue;
    QDesktopServices::openUrl(QUrl::fromLocalFile(manual.canonicalFilePath()));
    return;
  }
}

PrinterChoice DesktopPrinters::Choose() {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return {PrinterAnswer::None};
  auto device = std::make_shared<QtPrintDevice>();
  QPrintDialog dialog(&device->Printer, QApplication::activeWindow());
  dialog.setObjectName("PrintDialog");
  dialog.setWindowTitle(CaptionIn(choice_.Current, TextId::PrintMap));
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return {PrinterAnswer::GivenUp};
  return {PrinterAnswer::Chosen, {{}, {}, std::move(device)}};
}

std::optional<PrintTarget> DesktopPrinters::DefaultPrinter() {
  const QString printer = QPrinterInfo::defaultPrinterName();
  if (printer.isEmpty()) return std::nullopt;
  return PrintTarget{printer.toStdString(), {}};
}

}  // namespace orrerix
