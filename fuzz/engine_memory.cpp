// SPDX-License-Identifier: MIT
// SQLite's memory in the fuzz targets comes from the C library below the sanitizer. SQLite itself
// is not instrumented, and its many small blocks took a third of the time.
#include <cstddef>

#include <sqlite3.h>

// glibc's own functions, which the sanitizer does not replace.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_realloc(void* block, std::size_t size);
extern "C" void __libc_free(void* block);

namespace {

// Before each block stands its size; 16 bytes keep the block aligned.
constexpr std::size_t kHead = 16;

void* WithHead(void* begin, int size) {
  if (begin == nullptr) return nullptr;
  *static_cast<int*>(begin) = size;
  return static_cast<char*>(begin) + kHead;
}

void* BeginOf(void* block) {
  return static_cast<char*>(block) - kHead;
}

void* Allocate(int size) {
  return WithHead(__libc_malloc(static_cast<std::size_t>(size) + kHead), size);
}

void* Resize(void* block, int size) {
  return WithHead(__libc_realloc(BeginOf(block), static_cast<std::size_t>(size) + kHead), size);
}

void Free(void* block) {
  __libc_free(BeginOf(block));
}

int SizeOf(void* block) {
  return block == nullptr ? 0 : *static_cast<int*>(BeginOf(block));
}

int RoundUp(int size) {
  return (size + 7) & ~7;
}

int Start(void*) {
  return SQLITE_OK;
}

void Stop(void*) {}

// Before main, and so before SQLite's first call.
const int kConfigured = [] {
  const sqlite3_mem_methods methods = {Allocate, Free,  Resize, SizeOf,
                                       RoundUp,  Start, Stop,   nullptr};
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &methods);
}();

}  // namespace
