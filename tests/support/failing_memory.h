// SPDX-License-Identifier: MIT
// Lack of memory on demand, for test programs that are linked with failing_memory.cpp.
#pragma once

#include <cstddef>

namespace orrerix {

// While it lives, the allocation after so many others fails, once.
class FailingAllocation {
 public:
  explicit FailingAllocation(int allocationsBefore);
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;
  ~FailingAllocation();

  bool Happened() const;
};

// While it lives, every allocation of at least `from` and less than `to` bytes fails.
class FailingSizes {
 public:
  FailingSizes(std::size_t from, std::size_t to);
  FailingSizes(const FailingSizes&) = delete;
  FailingSizes& operator=(const FailingSizes&) = delete;
  ~FailingSizes();
};

}  // namespace orrerix
