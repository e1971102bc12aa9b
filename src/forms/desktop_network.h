// SPDX-License-Identifier: MIT
// Fetches from the network for the windows.
#pragma once

#include <QNetworkAccessManager>

#include "platform/network.h"

namespace orrerix {

// Bounds of one fetch.
struct FetchLimits {
  int Milliseconds = 10000;  // from the first byte asked to the last one come
  qint64 Bytes = 1024 * 1024;
};

// The network as the desktop knows it. A fetch goes on where a server leads it, but neither to
// another kind of address nor from https to http. While it waits, the user's keys and clicks wait,
// too.
class DesktopNetwork : public Network {
 public:
  explicit DesktopNetwork(FetchLimits limits = {}) : limits_(limits) {}

  std::string Get(const std::string& address) override;
  bool IsUp() const override;

 private:
  FetchLimits limits_;
  QNetworkAccessManager manager_;
};

}  // namespace orrerix
