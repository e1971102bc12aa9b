// SPDX-License-Identifier: MIT
// What a check finds: plain values for reports and windows.
#pragma once

#include <string>
#include <vector>

namespace orrerix::check {

enum class Severity { Error, Warning, Note };

// "error", "warning", "note"
constexpr const char* SeverityName(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    default:
      return "note";
  }
}

// The folder that a file lies in: the mod's own or the unmodified game beneath it.
enum class Layer { Game, Base };

constexpr const char* LayerName(Layer layer) {
  return layer == Layer::Game ? "game" : "base";
}

// Why a finding counts or does not.
enum class FindingState {
  Counted,
  Suppressed,  // by a comment in its file
  InBaseline,
};

// A line of a file; the path is the one in its folder, as on disk, with "/".
struct FilePlace {
  std::string File;
  int Line = 1;
  check::Layer Layer = check::Layer::Game;

  bool operator==(const FilePlace&) const = default;
};

// One mistake. All texts are UTF-8; what a finding lacks is empty.
struct Finding {
  std::string Rule;
  check::Severity Severity = check::Severity::Error;
  check::Layer Layer = check::Layer::Game;
  std::string File;  // path in its folder, as on disk, with "/"
  int Line = 1;
  int Column = 1;  // in characters, from 1
  std::string Section;
  std::string Nickname;
  std::string Key;
  std::string Value;  // all of it
  std::string Message;
  std::string Fingerprint;  // 16 hexadecimal digits
  std::vector<FilePlace> Related;
  FindingState State = FindingState::Counted;
};

}  // namespace orrerix::check
