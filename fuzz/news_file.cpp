// SPDX-License-Identifier: MIT
#include "map/panel/side_panel.h"
#include "online/news.h"
#include "online/web_pages.h"
#include "support.h"

// The input is a news file. What it says is laid out in the panel, and its links are judged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orrerix;
  const std::string_view text = InputText(data, size);
  IsNewsFile(text);
  const News news = ReadNews(text);
  IsUpdateDue(AppVersion{1, 0, 0}, news.LatestVersion);
  IsOpenable(news.UpdateAddress);
  PageAddress(news.UpdateAddress, WebPage::Main);

  NobodyThere messages;
  ErrorLog log(messages, AppVersion{1, 0, 0});
  FixedLanguage texts(Language::English);
  FixedTextMeasure measure;
  PanelContent content = PanelTexts(texts);
  for (const NewsEntry& entry : news.Entries) {
    content.News.push_back({entry.Caption, entry.ToolTip, entry.Address});
    IsOpenable(entry.Address);
  }
  LayOutPanelRight({0, 0, 4000, 9000},
                   {log, content, MapOptions::Defaults(false), true, false, measure});
  return 0;
}
