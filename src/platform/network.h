// SPDX-License-Identifier: MIT
// What is fetched from the network.
#pragma once

#include <stdexcept>
#include <string>

namespace orrerix {

// Why nothing was fetched, as a message for the player.
struct NetworkError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Fetches what is at http and https addresses.
class Network {
 public:
  virtual ~Network() = default;

  // The bytes at an address, whatever the server's status; returns when they are there. Throws
  // NetworkError if no answer comes in time, if it breaks off or is too large, or if it leads to
  // another kind of address.
  virtual std::string Get(const std::string& address) = 0;

  // Whether any network but the machine's own loop is up.
  virtual bool IsUp() const = 0;
};

}  // namespace orrerix
