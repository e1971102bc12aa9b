// SPDX-License-Identifier: MIT
#include "shell/memory_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

// Totals and free figures of physical memory, page file and address space.
MemoryStatus Status(std::uint32_t load, std::uint32_t physical, std::uint32_t freePhysical,
                    std::uint32_t page, std::uint32_t freePage, std::uint32_t space,
                    std::uint32_t freeSpace) {
  return {32, load, physical, freePhysical, page, freePage, space, freeSpace};
}

TEST(MemoryFigures, CompareTheStartWithNow) {
  const auto figures = MemoryFigures(Status(10, 1000, 600, 2000, 1500, 4000, 3900),
                                     Status(12, 1000, 500, 2000, 1300, 4000, 3850));

  // In use at the start 400, 500, 100; added 500 - 400, 700 - 500, 150 - 100; free 500, 1300, and
  // for the address space the free page file again.
  EXPECT_THAT(figures, ElementsAre(400, 100, 500, 500, 200, 1300, 100, 50, 1300));
}

TEST(MemoryFigures, ALowerUseThanAtTheStartAddsNothing) {
  const auto figures = MemoryFigures(Status(10, 1000, 600, 2000, 1500, 4000, 3900),
                                     Status(9, 1000, 700, 2000, 1600, 4000, 3950));

  EXPECT_THAT(figures, ElementsAre(400, 0, 700, 500, 0, 1600, 100, 0, 1600));
}

TEST(MemoryFigures, AreReadAsSignedNumbers) {
  // 3 GB free of 3 GB and a bit read as negative: -1073741824 of -1073741724.
  const auto figures = MemoryFigures(Status(0, 3221225572u, 3221225472u, 0, 0, 0, 0),
                                     Status(0, 3221225572u, 3221225472u, 0, 0, 0, 0));

  EXPECT_EQ(figures[0], 100);
  EXPECT_EQ(figures[1], 0);
  EXPECT_EQ(figures[2], -1073741824);
}

TEST(MemoryFigures, AreClampedToTheLargestNumber) {
  // Total 2147483647, free "-2147483648": the difference is twice what fits.
  const auto figures = MemoryFigures(Status(0, 0x7FFFFFFF, 0x80000000, 0, 0, 0, 0), {});

  EXPECT_EQ(figures[0], 2147483647);
}

TEST(MemoryCaption, IsInMegabytes) {
  EXPECT_EQ(MemoryCaption(0), "0.00 MB ");
  EXPECT_EQ(MemoryCaption(1048576), "1.00 MB ");
  EXPECT_EQ(MemoryCaption(1572864), "1.50 MB ");
  EXPECT_EQ(MemoryCaption(2147483647), "2,048.00 MB ");
  EXPECT_EQ(MemoryCaption(2147483647, {".", ","}), "2.048,00 MB ");
}

TEST(MemoryHeadline, NamesBothLoads) {
  MemoryStatus start;
  start.dwMemoryLoad = 12;
  MemoryStatus now;
  now.dwMemoryLoad = 15;

  EXPECT_EQ(MemoryHeadline(Language::English, start, now),
            "Startup Memory Usage 12%     Actual Usage 15%");
}

TEST(LayOutMemoryBars, ShareTheWidthBetweenLeftAndMargin) {
  // 10250 - 100 - 150 = 10000 for 400 + 100 + 500.
  const auto bars = LayOutMemoryBars({400, 100, 500, 0, 0, 0, 1, 1, 1}, 10250, 100);

  EXPECT_EQ(bars[0].Left, 100);
  EXPECT_EQ(bars[0].Width, 4000);
  EXPECT_EQ(bars[1].Left, 4100);
  EXPECT_EQ(bars[1].Width, 1000);
  EXPECT_EQ(bars[2].Left, 5100);
  EXPECT_EQ(bars[2].Width, 5000);
  // A third each, rounded; the last one takes the rest: 3333 + 3333 + 3334.
  EXPECT_EQ(bars[6].Width, 3333);
  EXPECT_EQ(bars[7].Width, 3333);
  EXPECT_EQ(bars[8].Width, 3334);
}

TEST(LayOutMemoryBars, ABarOfNothingIsAllFree) {
  const auto bars = LayOutMemoryBars({}, 10250, 100);

  EXPECT_EQ(bars[0].Width, 0);
  EXPECT_EQ(bars[1].Width, 0);
  EXPECT_EQ(bars[2].Width, 10000);
}

TEST(LayOutMemoryBars, NothingAddedHasNoWidth) {
  const auto bars = LayOutMemoryBars({400, 0, 600, 0, 0, 0, 0, 0, 0}, 10250, 100);

  EXPECT_EQ(bars[1].Width, 0);
  EXPECT_EQ(bars[2].Width, 6000);
}

TEST(LayOutMemoryBars, KeepsToSixteenBits) {
  const auto bars = LayOutMemoryBars({1, 0, 0, 0, 0, 0, 0, 0, 0}, 100'000, 0);

  EXPECT_EQ(bars[0].Width, 32767);
  EXPECT_EQ(bars[2].Width, 0);
}

}  // namespace
}  // namespace orrerix
