// SPDX-License-Identifier: MIT
#include "forms/desktop_network.h"

#include <gmock/gmock.h>

#include "loopback_server.h"
#include "online/news.h"

namespace orrerix {
namespace {

class DesktopNetworkTest : public ::testing::Test {
 protected:
  std::string Get(const std::string& path) { return network.Get(server.Address(path)); }

  LoopbackServer server;
  DesktopNetwork network;
};

TEST_F(DesktopNetworkTest, AGoodAnswerComesWhole) {
  server.OnText("/news.txt", "1.5\r\nNewer!\r\n");

  EXPECT_EQ(Get("/news.txt"), "1.5\r\nNewer!\r\n");
}

TEST_F(DesktopNetworkTest, AnEmptyAnswerIsEmpty) {
  server.OnText("/news.txt", "");

  EXPECT_EQ(Get("/news.txt"), "");
}

TEST_F(DesktopNetworkTest, AnErrorPageIsAnAnswerLikeAnyOther) {
  server.OnText("/news.txt", "<html>gone</html>", "404 Not Found");

  EXPECT_EQ(Get("/news.txt"), "<html>gone</html>");
}

TEST_F(DesktopNetworkTest, AnAnswerThatIsNoNewsIsAnAnswerAllTheSame) {
  server.OnText("/news.txt", "soon to come");

  EXPECT_FALSE(IsNewsFile(Get("/news.txt")));
}

TEST_F(DesktopNetworkTest, AnAnswerThatIsTooLargeFails) {
  server.OnText("/huge", QByteArray(1024 * 1024 + 1, 'x'));
  server.OnText("/large", QByteArray(1024 * 1024, 'x'));

  EXPECT_THROW(Get("/huge"), NetworkError);
  EXPECT_EQ(Get("/large").size(), 1024u * 1024);
}

TEST_F(DesktopNetworkTest, AServerThatIsSilentFailsWhenItsTimeIsOver) {
  server.On("/slow", [](QTcpSocket&) {});
  DesktopNetwork impatient({50, 1024});

  EXPECT_THROW(impatient.Get(server.Address("/slow")), NetworkError);
}

TEST_F(DesktopNetworkTest, AServerThatNeverEndsFailsWhenItsTimeIsOver) {
  server.On("/drip", [](QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nabc");
  });
  DesktopNetwork impatient({50, 1024});

  EXPECT_THROW(impatient.Get(server.Address("/drip")), NetworkError);
}

TEST_F(DesktopNetworkTest, AnAnswerThatBreaksOffFails) {
  server.On("/short", QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nabc"));

  EXPECT_THROW(Get("/short"), NetworkError);
}

TEST_F(DesktopNetworkTest, WithoutAServerItFails) {
  EXPECT_THROW(network.Get("http://127.0.0.1:1/news.txt"), NetworkError);
}

TEST_F(DesktopNetworkTest, ARedirectWithinTheSameKindOfAddressIsFollowed) {
  server.OnText("/there", "1.5");
  server.On("/here",
            QByteArray::fromStdString("HTTP/1.1 302 Found\r\nLocation: " +
                                      server.Address("/there") + "\r\nContent-Length: 0\r\n\r\n"));

  EXPECT_EQ(Get("/here"), "1.5");
}

TEST_F(DesktopNetworkTest, ARedirectToTheSecureAddressIsFollowed) {
  server.On("/here", QByteArray("HTTP/1.1 302 Found\r\nLocation: https://127.0.0.1:1/x"
                                "\r\nContent-Length: 0\r\n\r\n"));

  try {
    Get("/here");
    FAIL() << "there is no server at the secure address";
  } catch (const NetworkError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("refused"));
  }
}

TEST_F(DesktopNetworkTest, ARedirectToAnotherKindOfAddressFails) {
  for (const char* to : {"ftp://127.0.0.1/x", "file:///etc/hostname"}) {
    server.On("/here", QByteArray("HTTP/1.1 302 Found\r\nLocation: ") + to +
                           "\r\nContent-Length: 0\r\n\r\n");

    EXPECT_THROW(Get("/here"), NetworkError) << to;
  }
}

TEST_F(DesktopNetworkTest, ARedirectInACircleFails) {
  server.On("/round",
            QByteArray::fromStdString("HTTP/1.1 302 Found\r\nLocation: " +
                                      server.Address("/round") + "\r\nContent-Length: 0\r\n\r\n"));

  EXPECT_THROW(Get("/round"), NetworkError);
}

TEST_F(DesktopNetworkTest, OnlyWebAddressesAreFetched) {
  for (const char* address : {"", "news.txt", "file:///etc/hostname", "ftp://x/y", "http://"}) {
    EXPECT_THROW(network.Get(address), NetworkError) << address;
  }
}

}  // namespace
}  // namespace orrerix
