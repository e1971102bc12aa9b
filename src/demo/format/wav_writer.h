// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orrerix {

// A wav file: PCM, one channel, 16 bits, after the usual 44 bytes of header. `rate` is in samples
// per second.
std::string WavFile(const std::vector<std::int16_t>& samples, std::uint32_t rate);

}  // namespace orrerix
