// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// While it lives an interrupt (Ctrl+C) or a request to terminate does not end the process at once,
// but is noted for it to end tidily.
class Interruption {
 public:
  Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  ~Interruption();

  static bool IsAsked();

 private:
  using Handler = void (*)(int);
  Handler interrupt_;
  Handler terminate_;
};

}  // namespace orrerix
