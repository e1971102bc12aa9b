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
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, "Orrerix");
    reply_.reset(manager.get(request));
    QObject::connect(reply_.get(), &QNetworkReply::redirected, &loop_,
                     [this](const QUrl& to) { Redirect(to); });
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
  void Redirect(const QUrl& to) {
    if (IsRedirectFollowed(reply_->url(), to)) {
      emit reply_->redirectAllowed();
    } else {
      Break("The server leads to another kind of address");
    }
  }

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

bool IsRedirectFollowed(const QUrl& from, const QUrl& to) {
  return to.scheme() == from.scheme() || (from.scheme() == "http" && to.scheme() == "https");
}

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
