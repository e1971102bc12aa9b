// SPDX-License-Identifier: MIT
#include "forms/desktop_network.h"

#include <QEventLoop>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QTimer>
#include <algorithm>
#include <memory>

namespace orrerix {
namespace {

constexpr int kFirstFinalStatus = 200;

// Whether a server has answered, whatever its status says: the errors of that kind have numbers in
// the two hundreds and in the four hundreds.
bool IsAnswer(QNetworkReply::NetworkError error) {
  return error == QNetworkReply::NoError ||
         (error > QNetworkReply::UnknownProxyError &&
          error <= QNetworkReply::UnknownContentError) ||
         error >= QNetworkReply::InternalServerError;
}

// One fetch: it ends by itself, or by the first bound that it breaks.
class Fetch {
 public:
  Fetch(QNetworkAccessManager& manager, const QUrl& address, const FetchLimits& limits)
      : limits_(limits) {
    QNetworkRequest request(address);
    // Within the same kind of address, and from http to https. Asked about each one, Qt 6.4 now and
    // then ends at a redirect as if it were the answer.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, "Orrerix");
    reply_.reset(manager.get(request));
    QObject::connect(reply_.get(), &QNetworkReply::downloadProgress, &loop_,
                     [this](qint64 received, qint64) {
                       if (received > limits_.Bytes) Break("The answer is too large");
                     });
    QObject::connect(reply_.get(), &QNetworkReply::finished, &loop_, &QEventLoop::quit);
  }

  QByteArray Wait() {
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop_,
                     [this] { Break("The server does not answer in time"); });
    timer.start(limits_.Milliseconds);
    if (!reply_->isFinished()) loop_.exec(QEventLoop::ExcludeUserInputEvents);
    if (!broken_.isEmpty()) throw NetworkError(broken_.toStdString());
    if (!IsAnswer(reply_->error())) throw NetworkError(reply_->errorString().toStdString());
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status < kFirstFinalStatus) throw NetworkError("The server gives no final answer");
    return reply_->readAll();
  }

 private:
  void Break(const QString& why) {
    if (broken_.isEmpty()) broken_ = why;
    reply_->abort();
  }

  FetchLimits limits_;
  QEventLoop loop_;
  QString broken_;
  std::unique_ptr<QNetworkReply> reply_;
};

}  // namespace

std::string DesktopNetwork::Get(const std::string& address) {
  const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
  if (url.scheme() != "http" && url.scheme() != "https") {
    throw NetworkError("Only http and https addresses are fetched");
  }
  if (url.host().isEmpty()) throw NetworkError("The address names no host");
  return Fetch(manager_, url, limits_).Wait().toStdString();
}

bool DesktopNetwork::IsUp() const {
  const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
  return std::any_of(all.begin(), all.end(), [](const QNetworkInterface& each) {
    const auto flags = each.flags();
    return flags.testFlag(QNetworkInterface::IsUp) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack);
  });
}

}  // namespace orrerix
