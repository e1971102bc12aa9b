// SPDX-License-Identifier: MIT
// An HTTP server on the loopback address that answers every path as it was told to.
#pragma once

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace orrerix {

class LoopbackServer {
 public:
  using Reply = std::function<void(QTcpSocket&)>;

  LoopbackServer() {
    if (!server_.listen(QHostAddress::LocalHost)) throw std::runtime_error("no loopback port");
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Accept(); });
  }

  std::string Address(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
  }

  // What a path gets: raw bytes after which the connection closes, or whatever is done to it.
  void On(const std::string& path, const QByteArray& bytes) {
    replies_[path] = [bytes](QTcpSocket& socket) {
      socket.write(bytes);
      socket.disconnectFromHost();
    };
  }
  void On(const std::string& path, Reply reply) { replies_[path] = std::move(reply); }
  void OnText(const std::string& path, const QByteArray& text,
              const QByteArray& status = "200 OK") {
    On(path, "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(text.size()) +
                 "\r\nConnection: close\r\n\r\n" + text);
  }

 private:
  void Accept() {
    QTcpSocket* socket = server_.nextPendingConnection();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
      const QList<QByteArray> request = socket->readAll().split(' ');
      const auto reply = replies_.find(request.value(1).toStdString());
      if (reply != replies_.end()) reply->second(*socket);
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  }

  QTcpServer server_;
  std::map<std::string, Reply> replies_;
};

}  // namespace orrerix
