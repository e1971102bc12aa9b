// SPDX-License-Identifier: MIT
#include "online/news_loader.h"

#include <fstream>
#include <optional>
#include <sstream>

#include <gmock/gmock.h>

#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FakeNetwork : public Network {
 public:
  std::optional<std::string> Answer;  // none: it fails
  bool Up = true;
  std::vector<std::string> Asked;

  std::string Get(const std::string& address) override {
    Asked.push_back(address);
    if (!Answer) throw NetworkError("The server does not answer");
    return *Answer;
  }
  bool IsUp() const override { return Up; }
};

class NewsLoaderTest : public ::testing::Test {
 protected:
  NewsLoader Loader(const std::string& address = "http://x.example/news") {
    return NewsLoader(log, network, messages, address, folder.Path(), language);
  }
  std::string Saved(const char* name) {
    std::ifstream file(folder.Path() / name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }

  TempFolder folder;
  FakeNetwork network;
  FakeMessageBoxes messages;
  Language language = Language::German;
  ErrorLog log{messages, {1, 0, 0}};
};

TEST_F(NewsLoaderTest, TheTextAfterTheAddressIsKept) {
  network.Answer = "1.5\r\n";

  EXPECT_EQ(Loader().Fetch(), "1.5\r\n");
  EXPECT_THAT(network.Asked, ElementsAre("http://x.example/news"));
}

TEST_F(NewsLoaderTest, WithoutAnAddressNothingIsFetchedAndNothingFails) {
  EXPECT_EQ(Loader("").Fetch(), "");

  EXPECT_THAT(network.Asked, IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(NewsLoaderTest, AFailureAsksTheUserAndLeavesAnEmptyText) {
  for (const auto answer : {MessageAnswer::Ok, MessageAnswer::Cancel}) {
    messages.Answer = answer;
    EXPECT_EQ(Loader().Fetch(), "");
  }

  ASSERT_THAT(log.Failures(), SizeIs(2));
  EXPECT_EQ(log.Failures()[0].Source, "NewsLoader.GetHTML");
  EXPECT_EQ(log.Failures()[0].Info, "While loading News via MSINET.OCX");
  EXPECT_EQ(log.Failures()[0].What.Description,
            "The server does not answer (http://x.example/news)");
}

TEST_F(NewsLoaderTest, TextsAreUtf8OrElseOfTheGamesCharacterSet) {
  network.Answer = "\xC3\xA4 1";
  EXPECT_EQ(Loader().FetchText("http://x"), "ä 1");
  network.Answer = "\xE4 1";
  EXPECT_EQ(Loader().FetchText("http://x"), "ä 1");
}

TEST_F(NewsLoaderTest, AFileIsSavedUnderItsOwnName) {
  network.Answer = std::string("a\0b", 3);

  EXPECT_TRUE(Loader().SaveFile("http://x.example/pictures/logo.gif"));

  EXPECT_EQ(Saved("logo.gif"), std::string("a\0b", 3));
}

TEST_F(NewsLoaderTest, WithoutAConnectionAFileIsNotEvenAskedFor) {
  network.Up = false;

  EXPECT_FALSE(Loader().SaveFile("http://x.example/logo.gif"));

  EXPECT_THAT(network.Asked, IsEmpty());
  ASSERT_THAT(messages.Shown, SizeIs(1));
  EXPECT_EQ(messages.Shown[0].Text, "Keine Online Verbindung vorhanden ! Bitte einwählen !");
}

TEST_F(NewsLoaderTest, TheMessageAboutTheConnectionIsInTheLanguageInUse) {
  network.Up = false;
  language = Language::English;

  EXPECT_FALSE(Loader().SaveFile("http://x.example/logo.gif"));

  ASSERT_THAT(messages.Shown, SizeIs(1));
  EXPECT_EQ(messages.Shown[0].Text, "No online connection! Please dial in!");
}

TEST_F(NewsLoaderTest, AFileThatDoesNotComeIsToldInAPlainMessage) {
  EXPECT_FALSE(Loader().SaveFile("http://x.example/logo.gif"));

  ASSERT_THAT(messages.Shown, SizeIs(1));
  EXPECT_EQ(messages.Shown[0].Text, "The server does not answer");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(NewsLoaderTest, AFileWithoutANameCannotBeSaved) {
  network.Answer = "x";

  EXPECT_FALSE(Loader().SaveFile("http://x.example/"));
  EXPECT_THAT(messages.Shown, SizeIs(1));
}

TEST(StripPathHelper, WhatStandsAfterTheLastSeparatorIsTheName) {
  EXPECT_EQ(StripPathHelper("http://x/y/z.gif"), "z.gif");
  EXPECT_EQ(StripPathHelper("c:\\x\\y.gif"), "y.gif");
  EXPECT_EQ(StripPathHelper("y.gif"), "y.gif");
  EXPECT_EQ(StripPathHelper("x/"), "");
}

}  // namespace
}  // namespace orrerix
