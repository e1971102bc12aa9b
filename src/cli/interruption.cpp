// SPDX-License-Identifier: MIT
#include "cli/interruption.h"

#include <csignal>

namespace orrerix {
namespace {

volatile std::sig_atomic_t isAsked = 0;

void Note(int) {
  isAsked = 1;
}

}  // namespace

Interruption::Interruption()
    : interrupt_(std::signal(SIGINT, Note)), terminate_(std::signal(SIGTERM, Note)) {}

Interruption::~Interruption() {
  std::signal(SIGINT, interrupt_);
  std::signal(SIGTERM, terminate_);
}

bool Interruption::IsAsked() {
  return isAsked != 0;
}

}  // namespace orrerix
