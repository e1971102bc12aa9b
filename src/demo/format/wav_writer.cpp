// SPDX-License-Identifier: MIT
#include "demo/format/wav_writer.h"

#include "demo/format/byte_writer.h"

namespace orrerix {

std::string WavFile(const std::vector<std::int16_t>& samples, std::uint32_t rate) {
  constexpr std::uint32_t sampleSize = 2;
  const auto dataSize = static_cast<std::uint32_t>(samples.size()) * sampleSize;
  demo::ByteWriter out;
  out.Text("RIFF");
  out.U32(36 + dataSize);
  out.Text("WAVEfmt ");
  out.U32(16);
  out.U16(1);  // PCM
  out.U16(1);  // channels
  out.U32(rate);
  out.U32(rate * sampleSize);
  out.U16(sampleSize);
  out.U16(16);
  out.Text("data");
  out.U32(dataSize);
  for (const std::int16_t sample : samples) out.U16(static_cast<std::uint16_t>(sample));
  return out.Bytes();
}

}  // namespace orrerix
