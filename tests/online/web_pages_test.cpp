// SPDX-License-Identifier: MIT
#include "online/web_pages.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(WebPages, TheyStandOnTheHostOfTheNews) {
  EXPECT_EQ(PageAddress("http://x.example:8080/news/news.txt", WebPage::Main),
            "http://x.example:8080/OX");
  EXPECT_EQ(PageAddress("https://x.example", WebPage::WarningHelp),
            "https://x.example/details/warning.htm");
  EXPECT_NE(PageAddress("http://x.example/a", WebPage::FirstClan),
            PageAddress("http://x.example/a", WebPage::GameServer));
}

TEST(WebPages, WithoutAHostThereIsNone) {
  EXPECT_EQ(PageAddress("", WebPage::Main), "");
  EXPECT_EQ(PageAddress("file:///etc/hosts", WebPage::Main), "");
}

TEST(WebPages, OnlyHttpHttpsAndMailAddressesAreOpened) {
  EXPECT_TRUE(IsOpenable("https://x.example"));
  EXPECT_TRUE(IsOpenable("MailTo:vantor@x.example"));
  for (const char* address : {"", "ftp://x", "file:///x", "javascript:x", "mailto", " mailto:x"}) {
    EXPECT_FALSE(IsOpenable(address)) << address;
  }
}

TEST(WebPages, OnlyHttpAndHttpsBelongToTheWeb) {
  EXPECT_FALSE(IsWebAddress("mailto:vantor@x.example"));
  EXPECT_TRUE(IsWebAddress("http://x.example"));
  EXPECT_TRUE(IsWebAddress("HTTPS://x.example"));
  for (const char* address :
       {"", "ftp://x", "file:///x", "javascript:x", "httpx://y", " http://x"}) {
    EXPECT_FALSE(IsWebAddress(address)) << address;
  }
}

class Browser : public LinkOpener {
 public:
  std::vector<std::string> Opened;
  int Manuals = 0;
  void Open(const std::string& address) override { Opened.push_back(address); }
  void OpenManual() override { ++Manuals; }
};

TEST(OpenLink, AnEmptyAddressOpensTheManualAndAnUnsafeOneNothing) {
  Browser browser;

  OpenLink(browser, "http://x.example");
  OpenLink(browser, "");
  OpenLink(browser, "file:///etc/hostname");
  OpenLink(browser, "mailto:vantor@x.example");

  EXPECT_EQ(browser.Opened,
            (std::vector<std::string>{"http://x.example", "mailto:vantor@x.example"}));
  EXPECT_EQ(browser.Manuals, 1);
}

TEST(LogoHalves, TheDiagonalCutsTheLogo) {
  EXPECT_TRUE(IsFirstHalf(10, 90, 100, 100));   // lower left
  EXPECT_FALSE(IsFirstHalf(90, 10, 100, 100));  // upper right
  EXPECT_FALSE(IsFirstHalf(50, 50, 100, 100));  // on it
}

TEST(LogoHalves, PlacesCountInWholePercent) {
  // Of 400 x 300: 201 is 50 percent, 152 is 50 percent; 153 is 51.
  EXPECT_FALSE(IsFirstHalf(201, 152, 400, 300));
  EXPECT_TRUE(IsFirstHalf(201, 153, 400, 300));
}

TEST(LogoHalves, ALogoWithoutSizeHasNone) {
  EXPECT_FALSE(IsFirstHalf(0, 5, 0, 0));
}

}  // namespace
}  // namespace orrerix
