// SPDX-License-Identifier: MIT
#include "check/sha256.h"

#include <array>
#include <bit>
#include <cstdint>

namespace orrerix::check {
namespace {

constexpr std::size_t kBlock = 64;

// First 32 bits of the fractional parts of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> kRounds = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using State = std::array<std::uint32_t, 8>;

// First 32 bits of the fractional parts of the square roots of the first 8 primes.
constexpr State kStart = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                          0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

std::uint32_t BigEndian(std::string_view four) {
  std::uint32_t number = 0;
  for (const char byte : four) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

std::array<std::uint32_t, 64> Schedule(std::string_view block) {
  std::array<std::uint32_t, 64> words{};
  for (std::size_t i = 0; i < 16; ++i) words[i] = BigEndian(block.substr(4 * i, 4));
  for (std::size_t i = 16; i < 64; ++i) {
    const std::uint32_t a = words[i - 15];
    const std::uint32_t b = words[i - 2];
    const std::uint32_t small = std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3);
    const std::uint32_t large = std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10);
    words[i] = words[i - 16] + small + words[i - 7] + large;
  }
  return words;
}

State Compress(const State& before, std::string_view block) {
  const auto words = Schedule(block);
  auto [a, b, c, d, e, f, g, h] = before;
  for (std::size_t i = 0; i < 64; ++i) {
    const std::uint32_t sum1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
    const std::uint32_t choice = (e & f) ^ (~e & g);
    const std::uint32_t first = h + sum1 + choice + kRounds[i] + words[i];
    const std::uint32_t sum0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
    const std::uint32_t majority = (a & b) ^ (a & c) ^ (b & c);
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + sum0 + majority;
  }
  const State change = {a, b, c, d, e, f, g, h};
  State after = before;
  for (std::size_t i = 0; i < after.size(); ++i) after[i] += change[i];
  return after;
}

// What follows the bytes: a bit 1, zeros, the number of bits.
std::string Padded(std::string_view bytes) {
  std::string padded(bytes);
  padded += '\x80';
  while (padded.size() % kBlock != kBlock - 8) padded += '\0';
  const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
  for (int shift = 56; shift >= 0; shift -= 8) padded += static_cast<char>(bits >> shift & 0xFF);
  return padded;
}

}  // namespace

std::string Sha256Hex(std::string_view bytes) {
  const std::string padded = Padded(bytes);
  State state = kStart;
  for (std::size_t at = 0; at < padded.size(); at += kBlock) {
    state = Compress(state, std::string_view(padded).substr(at, kBlock));
  }
  constexpr std::string_view digits = "0123456789abcdef";
  std::string hex;
  for (const std::uint32_t word : state) {
    for (int shift = 28; shift >= 0; shift -= 4) hex += digits[word >> shift & 0xF];
  }
  return hex;
}

}  // namespace orrerix::check
