// SPDX-License-Identifier: MIT
#include "demo/content/sounds.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "demo/format/wav_writer.h"
#include "demo/plan/plane.h"

namespace orrerix::demo {
namespace {

constexpr std::uint32_t kRate = 22050;

// One tone of a chime. Pitch glides from `From` to `To` in hertz; times are in seconds.
struct Tone {
  double Start = 0;
  double Length = 0;
  double From = 0;
  double To = 0;
  double Volume = 0;
};

// Rises within 6 ms and dies away, so that no tone begins or ends with a click.
double Envelope(double time, double length) {
  const double rise = std::min(1.0, time / 0.006);
  const double rest = std::max(0.0, 1 - time / length);
  return rise * rest * rest;
}

void AddTone(std::vector<double>& mix, const Tone& tone) {
  const auto first = static_cast<std::size_t>(tone.Start * kRate);
  const auto count = static_cast<std::size_t>(tone.Length * kRate);
  double turn = 0;
  for (std::size_t i = 0; i < count && first + i < mix.size(); ++i) {
    const double time = static_cast<double>(i) / kRate;
    const double share = time / tone.Length;
    turn += (tone.From + (tone.To - tone.From) * share) / kRate;
    const double wave = SineOfTurn(turn) + 0.25 * SineOfTurn(2 * turn) + 0.1 * SineOfTurn(3 * turn);
    mix[first + i] += wave * Envelope(time, tone.Length) * tone.Volume;
  }
}

std::string Chime(double length, const std::vector<Tone>& tones) {
  std::vector<double> mix(static_cast<std::size_t>(length * kRate));
  for (const Tone& tone : tones) AddTone(mix, tone);
  std::vector<std::int16_t> samples;
  samples.reserve(mix.size());
  for (const double value : mix) {
    samples.push_back(static_cast<std::int16_t>(std::clamp(value, -1.0, 1.0) * 32000));
  }
  return WavFile(samples, kRate);
}

}  // namespace

std::vector<SoundFile> MenuSounds() {
  return {
      {"ui_secondary_window_open.wav",
       Chime(0.16, {{0, 0.12, 660, 880, 0.25}, {0.04, 0.12, 990, 1320, 0.15}})},
      {"ui_open_infocard_button.wav",
       Chime(0.34,
             {{0, 0.2, 523, 523, 0.3}, {0.07, 0.2, 659, 659, 0.3}, {0.14, 0.2, 784, 784, 0.3}})},
      {"ui_item_select.wav", Chime(0.1, {{0, 0.1, 1047, 988, 0.35}})},
      {"ui_nav_map_fade.wav", Chime(0.48, {{0, 0.46, 220, 440, 0.35},
                                           {0.02, 0.46, 331, 659, 0.2},
                                           {0.2, 0.28, 880, 880, 0.12}})},
      {"news_vendor_open.wav",
       Chime(0.4,
             {{0, 0.16, 784, 784, 0.3}, {0.1, 0.16, 587, 587, 0.3}, {0.2, 0.2, 880, 880, 0.3}})},
  };
}

}  // namespace orrerix::demo
