// SPDX-License-Identifier: MIT
#include "support/failing_memory.h"

#include <cstdlib>
#include <new>

namespace orrerix {
namespace {

struct Lack {
  bool Counts = false;
  int Left = 0;
  bool Happened = false;
  std::size_t From = 0;
  std::size_t To = 0;

  bool Refuses(std::size_t size) {
    if (size >= From && size < To) return true;
    if (!Counts || Left-- > 0) return false;
    Counts = false;
    Happened = true;
    return true;
  }
};

thread_local Lack currentLack;

}  // namespace

FailingAllocation::FailingAllocation(int allocationsBefore) {
  currentLack = {};
  currentLack.Left = allocationsBefore;
  currentLack.Counts = true;
}

FailingAllocation::~FailingAllocation() {
  currentLack = {};
}

bool FailingAllocation::Happened() const {
  return currentLack.Happened;
}

FailingSizes::FailingSizes(std::size_t from, std::size_t to) {
  currentLack = {};
  currentLack.From = from;
  currentLack.To = to;
}

FailingSizes::~FailingSizes() {
  currentLack = {};
}

}  // namespace orrerix

void* operator new(std::size_t size) {
  if (orrerix::currentLack.Refuses(size)) throw std::bad_alloc();
  void* memory = std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return orrerix::currentLack.Refuses(size) ? nullptr : std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

// Arrays, too: the sanitizers' own functions for them would not come here.

void* operator new[](std::size_t size) {
  return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& nothrow) noexcept {
  return operator new(size, nothrow);
}

void operator delete[](void* memory) noexcept {
  operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
  operator delete(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  operator delete(memory);
}
