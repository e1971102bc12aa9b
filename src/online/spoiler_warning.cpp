// SPDX-License-Identifier: MIT
#include "online/spoiler_warning.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "db/engine/engine.h"
#include "db/values/text.h"
#include "import/ini/ini_text.h"
#include "import/resources/windows1252.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr std::string_view kTextMarker = "Text =";

void Replace(std::string& text, std::string_view prefix, std::string_view keys,
             std::string_view key) {
  const std::string_view value = GetINIValue(keys, key);
  if (!value.empty()) text = std::string(prefix) + FromWindows1252(value);
}

}  // namespace

SpoilerTexts DefaultSpoilerTexts(Language language) {
  const auto text = [&](TextId id) { return std::string(TextIn(language, id)); };
  return {text(TextId::SpoilerHeadLine), text(TextId::SpoilerText), text(TextId::SpoilerOk),
          text(TextId::SpoilerCancel)};
}

SpoilerTexts WithModTexts(SpoilerTexts texts, std::string_view file) {
  const std::size_t marker = file.find(kTextMarker);
  const std::string_view keys = file.substr(0, marker);
  Replace(texts.Ok, "&OK - ", keys, "ok");
  Replace(texts.Cancel, "&CANCEL - ", keys, "cancel");
  Replace(texts.HeadLine, "", keys, "headline");
  if (marker == std::string_view::npos) return texts;
  const std::string_view behind = file.substr(marker + kTextMarker.size());
  const std::string_view text = Trim(behind.substr(std::min<std::size_t>(1, behind.size())));
  if (!text.empty()) texts.Text = FromWindows1252(text);
  return texts;
}

SpoilerTexts ReadSpoilerTexts(const GameFolder& game, Language language) {
  SpoilerTexts texts = DefaultSpoilerTexts(language);
  auto stream = game.OpenFile(game.Text() + "\\data\\OrrerixWarning.ini");
  if (!stream) return texts;
  const std::string file(std::istreambuf_iterator<char>(*stream), {});
  return stream->bad() ? texts : WithModTexts(std::move(texts), file);
}

void SetWarningOff(const std::filesystem::path& universeFile, bool off) {
  IgnoreFailures silent;
  Database universe = DBEngine::OpenDatabase(silent, universeFile);
  Recordset warning =
      universe.OpenRecordset(silent, "SELECT * FROM OXWarning", {}, RecordsetType::Dynaset);
  if (warning.AtEnd()) {
    warning = universe.OpenTable(silent, "OXWarning");
    warning.AddNew();
  } else {
    warning.Edit();
  }
  warning["off"] = off;
  warning.Update();
}

}  // namespace orrerix
